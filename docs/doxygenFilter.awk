#!/usr/bin/awk -f
# Filter for Doxygen: a comment above several declarations, with no empty line between them, is the
# comment of each, and functions outside of namespaces are documented too. Lines keep their numbers
# except after a comment that ends a line.
{ line[NR] = $0 }
/^#pragma once/ { line[NR] = $0 " /** @file */" }

# Ends the group whose comment begins at line `first`, where it has several declarations.
function finish() {
    if (declarations > 1) {
        line[first - 1] = line[first - 1] (line[first - 1] ~ /\/\/[^*]*$/ ? "\n" : " ") "/** @{ */"
        line[last] = line[last] " /** @} */"
    }
    first = declarations = 0
}

END {
    for (i = 1; i <= NR; ++i) {
        text = line[i]
        isComment = text ~ /^ *\/\/\//
        if (depth == base && (text ~ /^ *($|}|#|public:|private:|protected:)/ || (isComment && declarations)))
            finish()
        if (isComment && !first) {
            first = i
            base = depth
        }
        if (isComment)
            continue
        if (!declarations && text ~ /^ *(class|struct|enum|namespace|template <.*>$)/)
            first = 0
        code = text
        sub(/\/\/.*/, "", code)
        depth += gsub(/{/, "{", code) - gsub(/}/, "}", code)
        if (first && depth == base && code ~ /[;}] *$/ && text !~ /\/\/\/</) {
            ++declarations
            last = i
        }
    }
    for (i = 1; i <= NR; ++i)
        print line[i]
}
