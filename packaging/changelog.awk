# The newest section of CHANGELOG.md in the form of a Debian changelog. Values: package, version, contact, now.

# Prints the collected list item, in lines of less than 80 characters.
function flush_bullet(    words, count, i, line) {
    count = split(bullet, words, " ")
    line = "  *"
    if (count && gap) print ""
    if (count) gap = 0
    for (i = 1; i <= count; ++i) {
        if (length(line) + length(words[i]) > 78) {
            print line
            line = "   "
        }
        line = line " " words[i]
    }
    if (count) print line
    bullet = ""
}
/^## / {
    if (inside++) exit
    print package " (" version ") unstable; urgency=medium"
    gap = 1
    next
}
!inside { next }
/^### / { flush_bullet(); gap = 0; print "\n  [ " substr($0, 5) " ]" }
/^- / { flush_bullet(); bullet = substr($0, 3) }
/^  [^ ]/ { bullet = bullet " " $0 }
END { flush_bullet(); print "\n -- " contact "  " now }
