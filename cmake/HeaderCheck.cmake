# Proves that each public header compiles by itself: one source per header, which includes it twice
# (the second time must be harmless) and nothing before it.
function(add_header_check target)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/header_check")
    set(sources)
    foreach(header ${ARGN})
        cmake_path(GET header FILENAME name)
        set(source "${folder}/${name}.cpp")
        file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${name}\"\n#include \"${name}\"\n")
        list(APPEND sources "${source}")
    endforeach()
    add_library(${target} OBJECT ${sources})
endfunction()
