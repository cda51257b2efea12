# Turns the examples of public headers (the lines that their first comments set in by four spaces) into functions, and one
# that calls them all: RunHeaderExamples.
BEGIN {
    print "#include <cvutil32.h>\n#include <cstdio>\n#include <new>\n"
}

function End() {
    if (inside) {
        print "}\n"
    }
    inside = 0
}

FNR == 1 {
    End()
    over = 0
}

/^#pragma once/ {
    over = 1
}

over {
    next
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
    print "void RunHeaderExamples() {"
    for (i = 1; i <= count; ++i) {
        print "    Example" i "();"
    }
    print "}"
}
