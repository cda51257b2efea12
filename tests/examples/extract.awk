# Turns the examples of a public header (the lines that its first comment sets in by four spaces) into functions, and one
# that calls them all: Run_<name>.
BEGIN {
    print "#include <cvutil32.h>\n#include <cstdio>\n#include <new>\n"
}

function End() {
    if (inside) {
        print "}\n"
    }
    inside = 0
}

/^#pragma once/ {
    exit
}

/^\/\/\/     / {
    if (!inside) {
        print "static void Example" ++count "() {"
    }
    inside = 1
    print substr($0, 5)
    next
}

!/^\/\/\/ *$/ {
    End()
}

END {
    End()
    print "void Run_" name "() {"
    for (i = 1; i <= count; ++i) {
        print "    Example" i "();"
    }
    print "}"
}
