#!/bin/sh
# Has gdb print the values of a program, with the printers that it loads by itself for an installed library.
# Usage: gdb-printers.sh INSTALLED LIBDIR PROGRAM COMMANDS EXPECTED
set -eu
installed=$1 libdir=$2 program=$3 commands=$4 expected=$5

LC_ALL=C.UTF-8 LD_LIBRARY_PATH="$installed/$libdir" gdb -nx -batch \
    -iex "set auto-load scripts-directory $installed/share/gdb/auto-load" \
    -iex "add-auto-load-safe-path $installed" \
    -x "$commands" "$program" 2>&1 | sed '1,/^--$/d' | diff "$expected" -
