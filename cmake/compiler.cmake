# What every target of the project is compiled with; targets take it by linking docbench_flags.
add_library(docbench_flags INTERFACE)
target_compile_options(docbench_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror)
target_compile_definitions(docbench_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # At -O3 this compiler sees uninitialised members in the moves of optional Qt containers.
    target_compile_options(docbench_flags INTERFACE -Wno-maybe-uninitialized)
endif()

if(DOCBENCH_SANITIZE)
    target_compile_options(docbench_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(docbench_flags INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE})
    # ccache can only keep objects that use a precompiled header if the preprocessor leaves it alone.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(docbench_flags INTERFACE -fpch-preprocess)
    endif()
endif()

if(DOCBENCH_TIDY)
    set(CMAKE_CXX_CLANG_TIDY clang-tidy)
endif()
