# How everything here is compiled. Targets link `compiling` privately: hosts keep their own choice.
add_library(compiling INTERFACE)
target_compile_features(compiling INTERFACE cxx_std_20)
target_compile_definitions(compiling INTERFACE
    NOMINMAX
    WINVER=0x0601
    _WIN32_WINNT=0x0601
    _WIN32_IE=0x0800)

if(MSVC)
    target_compile_options(compiling INTERFACE
        "$<$<COMPILE_LANGUAGE:CXX>:/W4;/WX;/permissive-;/utf-8;/Zc:__cplusplus>")
    target_link_options(compiling INTERFACE LINKER:/WX)
else()
    target_link_options(compiling INTERFACE LINKER:--fatal-warnings)
    # Of the resource compiler only the preprocessor can be told.
    target_compile_options(compiling INTERFACE
        "$<$<COMPILE_LANGUAGE:RC>:--preprocessor-arg=-Werror>")
    # For C++ alone: the resource compiler would take these for its own.
    target_compile_options(compiling INTERFACE
        "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Werror>")
    # The framework's interface hides CWnd's Create in every control, on purpose.
    target_compile_options(compiling INTERFACE
        "$<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-overloaded-virtual>")
    if(ONBOARDUI_UBSAN)
        # The trapping kind: the other would need a run-time library that does not exist here.
        target_compile_options(compiling INTERFACE
            "$<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined;-fsanitize-undefined-trap-on-error>")
    endif()
endif()

if(ONBOARDUI_GUARDED_HEAP)
    # In every module and with a run-time library in each: what one allocates another may free.
    target_sources(compiling INTERFACE "${PROJECT_SOURCE_DIR}/checks/GuardedHeap.cpp")
    target_link_options(compiling INTERFACE -static-libstdc++ -static-libgcc)
endif()

# The version of a shared library, for whoever looks at its file.
function(add_version_resource target file description)
    set(version_file "${file}.dll")
    set(version_description "${description}")
    string(REPLACE "." "," version_numbers "${PROJECT_VERSION},0")
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Version.rc.in" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}")
endfunction()

# The slow headers are compiled once per target. afxwin.h stands first, as it has to.
function(precompile_headers target)
    target_precompile_headers(${target} PRIVATE
        ${ARGN} <windows.h> <map> <memory> <string> <vector>)
endfunction()

# The compiler's shared run-time libraries beside the programs, so that these start by themselves,
# here and where it is installed. Shared, because objects and exceptions cross the borders of our
# own shared libraries.
function(place_runtime_libraries folder)
    if(NOT MINGW)
        return()
    endif()
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        find_file(path_of_${name} ${name}
            PATHS ${CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES}
                /usr/x86_64-w64-mingw32/lib /usr/x86_64-w64-mingw32/bin
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE REQUIRED)
        file(COPY "${path_of_${name}}" DESTINATION "${folder}")
        install(FILES "${path_of_${name}}" DESTINATION bin)
    endforeach()
endfunction()
