# The newest section of CHANGELOG.md in the form of a Debian changelog. Values: package, version, contact, now.
/^## / {
    if (inside++) exit
    print package " (" version ") unstable; urgency=medium\n"
    next
}
!inside { next }
/^### / { print "\n  [ " substr($0, 5) " ]" }
/^- / { print "  * " substr($0, 3) }
/^  [^ ]/ { print "  " $0 }
END { print "\n -- " contact "  " now }
