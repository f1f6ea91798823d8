# What every target of the project shares.

add_library(tavrelo_options INTERFACE)
target_compile_options(tavrelo_options INTERFACE -Wall -Wextra -Wconversion -Werror)
# GCC 12 warns of overlaps and uninitialised strings that do not exist where literals and temporaries are joined.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tavrelo_options INTERFACE -Wno-restrict)
    if(TAVRELO_SANITIZE)
        target_compile_options(tavrelo_options INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
target_include_directories(tavrelo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(TAVRELO_SANITIZE)
    target_compile_options(tavrelo_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                     -fno-omit-frame-pointer)
    target_link_options(tavrelo_options INTERFACE -fsanitize=address,undefined)
endif()

# Tables of cases take most of their time in the compiler; what they test stays optimised.
set(TAVRELO_TEST_OPTIONS $<$<BOOL:${TAVRELO_SANITIZE}>:-O0>)

# tavrelo_library(numeric SOURCES a.cpp b.cpp LINKS text): the static library of one folder of src/. It links only the
# folders named, so what an include that points up declares does not link; src/arrows.txt tells which may point where.
function(tavrelo_library folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    list(TRANSFORM ARG_LINKS PREPEND tavrelo_)
    add_library(tavrelo_${folder} STATIC ${ARG_SOURCES})
    target_link_libraries(tavrelo_${folder} PUBLIC tavrelo_options ${ARG_LINKS})
    if(NOT folder STREQUAL "qt")
        tavrelo_precompile(tavrelo_${folder})
    endif()
endfunction()

# tavrelo_are_built(result expr text): whether this build has the libraries of all these folders. Only a build of some
# rooms alone may lack one; its tests, harnesses and benchmarks are then left out.
function(tavrelo_are_built result)
    set(${result} TRUE PARENT_SCOPE)
    foreach(folder ${ARGN})
        if(NOT TAVRELO_ROOMS STREQUAL "all" AND NOT TARGET tavrelo_${folder})
            set(${result} FALSE PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

# tavrelo_whole_tests(window): these tests look at the program as a whole, as users get it. A check runs them in the release
# build and all others under the sanitizers.
function(tavrelo_whole_tests)
    set_tests_properties(${ARGN} PROPERTIES LABELS whole)
endfunction()
