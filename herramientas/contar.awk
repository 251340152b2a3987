# Adds up a suite out of ctest's record of it (JUnit): prints "passed failed checks". A program is as
# many test cases as its framework says at its end:
#   [doctest] test cases:  47 |  47 passed | 0 failed | 0 skipped
#   [doctest] assertions: 185 | 185 passed | 0 failed |
# or as a line "N passed, N failed" of a script says. Another test counts as one, and so does one that
# failed and says nothing of it; what only prepares others counts where it failed.
function cerrar() {
    if (estado == "") return
    if (estado != "run" && !malas) malas = 1
    else if (estado == "run" && !cierres && nombre !~ /^(registrar|empaquetar)$/) buenas = 1
    passed += buenas; failed += malas; checks += comprobaciones
    estado = ""
}
{ sub(/\r$/, ""); sub(/^[ \t]*<system-out>/, "") }
/<testcase / {
    cerrar()
    nombre = $0; sub(/.*<testcase name="/, "", nombre); sub(/".*/, "", nombre)
    estado = $0; sub(/.* status="/, "", estado); sub(/".*/, "", estado)
    buenas = malas = comprobaciones = cierres = 0
}
/\[doctest\] test cases: / {
    sub(/.*\[doctest\]/, "")
    split($0, part, "|")
    split(part[2], word, " "); buenas += word[1]
    split(part[3], word, " "); malas += word[1]
    cierres++
}
/\[doctest\] assertions: / { sub(/.*assertions:/, ""); comprobaciones += $1 }
/^[0-9]+ passed, [0-9]+ failed/ { buenas += $1; malas += $3; comprobaciones += $1 + $3; cierres++ }
END { cerrar(); print passed + 0, failed + 0, checks + 0 }
