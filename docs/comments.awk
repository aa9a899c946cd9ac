# Makes the plain comments of a header, on its standard input or first argument, those that Doxygen
# reads. Lines stay where they are.
#
# A comment right above a declaration is the declaration's; one behind it, too. One that stands by
# itself is the file's if the file begins with it, and nobody's otherwise. One at the head of a group
# of declarations, which stands between "// @{" and "// @}", is that of each in the group.
#
# What is no business of hosts lies in a section: "handlers" has the handlers of messages, which the
# framework calls, and "state" the protected data that have no comment. ENABLED_SECTIONS in Doxyfile
# says which sections are read.

function flush_block(alone, plain,    line) {
    if (heading) {
        # The first two lines are still to come: the pragma and an empty one.
        heading = 0
        print (alone && first == 3 ? "/** \\file" : "/** \\file */")
        print ""
    }
    commented = block > 0 && !alone
    for (line = 1; line <= block; ++line) {
        if (alone && first == 3) {
            sub(/^ *\/\/ ?/, "", lines[line])
            lines[line] = lines[line] (line == block ? " */" : "")
        } else if (!alone && !plain) {
            sub(/\/\//, "///", lines[line])
        }
        print lines[line]
    }
    block = 0
}

# The line in a section of this name, which goes on to the end of the declaration.
function in_section(name, line,    open) {
    open = section == ""
    section = line ~ /; *(\/\/.*)?$/ ? "" : name
    return (open ? "/** \\cond " name " */" : "") line (section == "" ? "/** \\endcond */" : "")
}

NR <= 2 {
    heading = 1
    next
}
/^ *\/\/ @[{}]$/ {
    flush_block(0)
    sub(/\/\/ /, "///")
    print
    grouped = /{/
    next
}
/^ *\/\/( |$)/ {
    if (block == 0) {
        first = NR
    }
    lines[++block] = $0
    next
}
section != "" {
    print in_section(section, $0)
    next
}
/^ *afx_msg / {
    flush_block(0, 1)
    print in_section("handlers", $0)
    next
}
/^ *(public|protected|private):$/ {
    access = $1
}
{
    flush_block($0 ~ /^ *$/)
    if (access == "protected:" && !commented && !grouped && !/\/\// &&
        /^    [^()]*[ *&][A-Za-z_]+(\[[A-Za-z]+\])?( = [^;]*|\{[^;]*\})?;$/) {
        print in_section("state", $0)
        next
    }
    if (match($0, /[^ ] +\/\/ /)) {
        sub(/ \/\/ /, " ///< ")
    }
    print
}
END {
    flush_block(1)
}
