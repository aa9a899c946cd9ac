# cmake -D... -P: installs the build in BUILD to PACKAGE/installed and builds the first example
# against it, in PACKAGE/host.
set(installed "${PACKAGE}/installed")
set(host "${PACKAGE}/host")
file(REMOVE_RECURSE "${installed}" "${host}")

execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIGURATION}" --prefix "${installed}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# A package can be moved to another folder or machine.
file(GLOB scripts "${installed}/lib/cmake/OnBoardUI/*.cmake")
foreach(script ${scripts})
    file(READ "${script}" text)
    foreach(folder "${TREE}" "${BUILD}")
        string(FIND "${text}" "${folder}" place)
        if(NOT place EQUAL -1)
            message(FATAL_ERROR "${script} names ${folder}")
        endif()
    endforeach()
endforeach()

execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${TREE}/examples/first_control" -B "${host}" -G "${GENERATOR}"
        "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}"
        "-DCMAKE_BUILD_TYPE=${CONFIGURATION}" "-DCMAKE_PREFIX_PATH=${installed}"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${CMAKE_COMMAND}" --build "${host}" --config "${CONFIGURATION}"
    COMMAND_ERROR_IS_FATAL ANY)
