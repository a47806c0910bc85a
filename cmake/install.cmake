# What `cmake --install` puts where. Component "runtime": what a user needs; "development": what hosts
# of the controls are built with. The shared libraries are told in designer/.

install(TARGETS docbench docmodel_tool docbench-samples docbench-thumbnailer docmodel
    RUNTIME DESTINATION ${DOCBENCH_FOLDER} COMPONENT runtime
    LIBRARY DESTINATION ${DOCBENCH_FOLDER} COMPONENT runtime)
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lang DESTINATION ${DOCBENCH_FOLDER}
    COMPONENT runtime)

# docbench_link(NAME): the program on the user's search path, a link into the folder.
function(docbench_link name)
    cmake_path(RELATIVE_PATH DOCBENCH_FOLDER BASE_DIRECTORY ${CMAKE_INSTALL_BINDIR}
        OUTPUT_VARIABLE target)
    install(CODE "
        set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
        file(MAKE_DIRECTORY \"\${folder}\")
        file(CREATE_LINK \"${target}/${name}\" \"\${folder}/${name}\" SYMBOLIC)"
        COMPONENT runtime)
endfunction()
docbench_link(docbench)
docbench_link(docmodel)
docbench_link(docbench-samples)
docbench_link(docbench-thumbnailer)

# The guide and the manual of the commands, with their pictures.
file(GLOB pictures ${PROJECT_SOURCE_DIR}/docs/*.png)
install(FILES ${PROJECT_SOURCE_DIR}/docs/users-guide.md ${PROJECT_SOURCE_DIR}/docs/command-line.md
    ${PROJECT_SOURCE_DIR}/docs/property-search.md ${PROJECT_SOURCE_DIR}/docs/container-format.md ${pictures}
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
