# The project's libraries, in the order in which they may use each other. The folders add their
# sources to them with target_sources.

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

# The interfaces of the document library: headers alone.
add_library(docaccess INTERFACE)
target_include_directories(docaccess INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${DOCBENCH_HEADERS}>)
target_compile_features(docaccess INTERFACE cxx_std_20)
target_link_libraries(docaccess INTERFACE Qt6::Core Qt6::Gui $<BUILD_INTERFACE:docbench_flags>)

# The settings store, which both the program and the document library read and write.
add_library(docbench_settings STATIC)
target_include_directories(docbench_settings PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(docbench_settings PUBLIC Qt6::Core docbench_flags)
set_target_properties(docbench_settings PROPERTIES
    CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)

# Services, cells and the widget-free half of every subsystem. Qt Widgets stays out of it. Shared, so
# that a host and the controls have one set of the process-wide variables.
add_library(docbench_core SHARED)
set_target_properties(docbench_core PROPERTIES
    CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
target_link_libraries(docbench_core
    PUBLIC docaccess Qt6::Core Qt6::Gui
    PRIVATE "$<LINK_LIBRARY:WHOLE_ARCHIVE,docbench_settings>")
target_precompile_headers(docbench_core PRIVATE <QtCore> <QtGui>)

# The panes. The shared library shows hosts the classes marked DOCBENCH_EXPORT and nothing else; tests
# take the objects, to reach the rest.
add_library(docbench_controls_objects OBJECT)
target_include_directories(docbench_controls_objects PUBLIC ${PROJECT_SOURCE_DIR})
target_compile_definitions(docbench_controls_objects PRIVATE
    DOCBENCH_BUILDING_CONTROLS DOCBENCH_VERSION="${PROJECT_VERSION}")
target_link_libraries(docbench_controls_objects
    PUBLIC docbench_core Qt6::Widgets Qt6::Svg)
target_precompile_headers(docbench_controls_objects PRIVATE <QtWidgets>)

add_library(docbench_controls SHARED)
set_target_properties(docbench_core PROPERTIES EXPORT_NAME Core)
set_target_properties(docbench_controls PROPERTIES EXPORT_NAME Controls)
set_target_properties(docaccess PROPERTIES EXPORT_NAME DocAccess)
target_link_libraries(docbench_controls
    PUBLIC docbench_core Qt6::Widgets
    PRIVATE $<BUILD_INTERFACE:docbench_controls_objects>)
