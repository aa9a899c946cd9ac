# cmake -DREADME=... -DFILES=... -P: fails unless the README shows each of the files, whole and
# unchanged, in a block of its own.
file(READ "${README}" readme)
foreach(file ${FILES})
    file(READ "${file}" text)
    string(FIND "${readme}" "\n${text}```\n" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "${README} does not show ${file} as it is")
    endif()
endforeach()
