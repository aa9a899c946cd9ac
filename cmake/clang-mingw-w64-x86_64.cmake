# The same programs by the second compiler: Debian's clang, with the headers and the run-time
# libraries of the first, which is asked where they lie (clang does not find a folder that is named
# for a threading model, as "12-posix" is).
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64.cmake")
set(gcc ${CMAKE_CXX_COMPILER})

set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER clang)
foreach(language C CXX)
    set(CMAKE_${language}_COMPILER_TARGET x86_64-w64-windows-gnu)
endforeach()

execute_process(
    COMMAND ${gcc} -print-libgcc-file-name
    OUTPUT_VARIABLE folder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET folder PARENT_PATH folder)
set(headers "${folder}/include/c++")
string(JOIN " " CMAKE_CXX_FLAGS_INIT
    "-isystem ${headers}"
    "-isystem ${headers}/x86_64-w64-mingw32"
    "-isystem ${headers}/backward")

# An object may end in a call that it makes: what it holds is not read ahead of asking whether it is
# still there.
add_compile_options(
    "$<$<COMPILE_LANGUAGE:CXX>:SHELL:-mllvm -use-dereferenceable-at-point-semantics=1>")

# The first compiler's linker, and the thread library that it names by itself.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT
        "-B${folder} -L${folder} --ld-path=/usr/bin/x86_64-w64-mingw32-ld -pthread")
endforeach()
