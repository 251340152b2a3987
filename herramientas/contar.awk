# Adds up what the test framework says at the end of each program: prints "passed failed checks closings".
#   [doctest] test cases:  47 |  47 passed | 0 failed | 0 skipped
#   [doctest] assertions: 185 | 185 passed | 0 failed |
{ sub(/\r$/, ""); gsub(/\033\[[0-9;]*m/, "") }
/^\[doctest\] test cases: / {
    n = split($0, part, "|")
    split(part[2], word, " "); passed += word[1]
    split(part[3], word, " "); failed += word[1]
    closings++
}
/^\[doctest\] assertions: / { checks += $3 }
END { print passed + 0, failed + 0, checks + 0, closings + 0 }
