# Makes the plain comments of a header, on its standard input or first argument, those that Doxygen
# reads. Lines stay where they are.
#
# A comment right above a declaration is the declaration's; one behind it, too. One that stands by
# itself is the file's if the file begins with it, and nobody's otherwise.

function flush_block(alone,    line) {
    if (heading) {
        # The first two lines are still to come: the pragma and an empty one.
        heading = 0
        print (alone && first == 3 ? "/** \\file" : "/** \\file */")
        print ""
    }
    for (line = 1; line <= block; ++line) {
        if (alone && first == 3) {
            sub(/^ *\/\/ ?/, "", lines[line])
            lines[line] = lines[line] (line == block ? " */" : "")
        } else if (!alone) {
            sub(/\/\//, "///", lines[line])
        }
        print lines[line]
    }
    block = 0
}

NR <= 2 {
    heading = 1
    next
}
/^ *\/\/( |$)/ {
    if (block == 0) {
        first = NR
    }
    lines[++block] = $0
    next
}
{
    flush_block($0 ~ /^ *$/)
    if (match($0, /[^ ] +\/\/ /)) {
        sub(/ \/\/ /, " ///< ")
    }
    print
}
END {
    flush_block(1)
}
