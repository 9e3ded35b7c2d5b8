#!/usr/bin/env python3
"""Compares the instructions that reading and writing take, for each byte of a text document, with those of
instructions.txt. Fails where one is more than 5 % off: above, the library has become slower; below, the
file wants the new figure. With --update, writes the file.
"""
import sys

from programs import HERE, document, instructions_per_byte

TOLERANCE = 0.05
STORED = HERE / "instructions.txt"


def main():
    stored = {(program, operation): float(figure)
              for program, operation, figure in map(str.split, STORED.read_text().splitlines())}
    counted = {work: instructions_per_byte(*work, document(200)) for work in stored}
    if sys.argv[1:] == ["--update"]:
        STORED.write_text("".join(f"{' '.join(work)} {count:.1f}\n" for work, count in counted.items()))
        return 0
    failed = False
    for work, count in counted.items():
        change = count / stored[work] - 1
        failed |= abs(change) > TOLERANCE
        print(f"{' '.join(work)}: {count:.1f} instructions per byte, {change:+.1%} against {stored[work]}")
    return failed


sys.exit(main())
