#!/bin/sh
# Builds a program against an installed tree with nothing but the compiler and pkg-config, and runs it; if STATIC is
# ON, once more as a program that needs no shared library at all.
# Usage: with-pkg-config.sh INSTALLED LIBDIR SOURCE PROGRAM COMPILER FLAGS STATIC
set -eu
installed=$1 libdir=$2 source=$3 program=$4 compiler=$5 flags=$6 static=$7

export PKG_CONFIG_PATH="$installed/$libdir/pkgconfig"
pkg-config --exists --print-errors 'quillon >= 10.1'

# The flags are lists of words.
# shellcheck disable=SC2046,SC2086
{
    "$compiler" -std=c++20 -Wall -Wextra -Wpedantic -Werror $flags $(pkg-config --cflags quillon) -c "$source" -o "$program.o"
    "$compiler" $flags "$program.o" -o "$program" $(pkg-config --libs quillon)
    LD_LIBRARY_PATH="$installed/$libdir" "$program"
    if [ "$static" = ON ]; then
        "$compiler" -static $flags "$program.o" -o "$program-static" $(pkg-config --static --libs quillon)
        "$program-static"
    fi
}
