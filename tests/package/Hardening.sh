#!/bin/bash
# Hardening.sh PROGRAM SOURCE_FOLDER: whether the linked program has what makes a fault harder to exploit, and tells
# nothing of the place where it was built.
set -euo pipefail

program=$1
sources=$2
facts=$(LC_ALL=C readelf --wide --file-header --program-headers --dynamic --dyn-syms --notes "$program")
status=0

Expect() {
    grep -qE "$2" <<<"$facts" || { echo "Missing: $1" && status=1; }
}

ExpectNo() {
    ! grep -qE "$2" <<<"$facts" || { echo "Should not be: $1" && status=1; }
}

Expect "a program that loads anywhere" 'FLAGS_1.* PIE'
Expect "all functions bound at the start" 'FLAGS_1.* NOW'
Expect "tables that are read-only then" '^ *GNU_RELRO'
Expect "a stack without code" '^ *GNU_STACK .* RW '
Expect "the guard of the stack" '__stack_chk_fail'
Expect "containers that check the index" '__glibcxx_assert_fail'
ExpectNo "code that is changed while it is loaded" 'TEXTREL'
ExpectNo "folders of its own to look for libraries" 'RPATH|RUNPATH'
# The linker's own mark is missing where the C library was built without it, so count the places.
landings=$(LC_ALL=C grep -oaP '\xf3\x0f\x1e\xfa' "$program" | wc -l)
if grep -q 'Machine:.*X86-64' <<<"$facts" && ((landings < 1000)); then
    echo "Missing: jumps that arrive only where they may ($landings places)"
    status=1
fi
if grep -qaF "$sources" "$program"; then
    echo "The program names the folder $sources"
    status=1
fi
exit "$status"
