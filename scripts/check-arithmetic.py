#!/usr/bin/env python3
"""Compares big integers and decimals with Python's own, on random operands.

    cmake --build --preset dev --target quillon_arithmetic
    scripts/check-arithmetic.py build/dev/tests/quillon_arithmetic --cases 50000

Exits with 1 and shows the cases that differ, if there are any. The operands lean towards what goes wrong:
runs of 0, 5 and 9, lengths about multiples of nine, values just above and below a half.
"""

import argparse
import collections
import decimal
import math
import random
import subprocess
import sys
from decimal import Decimal

sys.set_int_max_str_digits(0)
EXACT = decimal.Context(prec=100_000, Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN)
decimal.setcontext(EXACT)

OVERFLOW = "ERROR: Overflow in operator"
LONGEST_TEXT = 1024


# --- operands ---------------------------------------------------------------------------------------------

def random_digits(rng, most):
    """A text of decimal digits, without a zero in front."""
    length = rng.choice([rng.randint(1, 4), rng.randint(1, 20), 9 * rng.randint(1, 6) + rng.randint(-1, 1),
                         rng.randint(1, most)])
    text = ""
    while len(text) < length:
        run = rng.choice([1, 1, 1, 9, 18])
        text += rng.choice([rng.choice("059") * run, str(rng.randint(0, 10 ** run - 1)),
                            str(10 ** run + rng.randint(-2, 2))])
    return text[:length].lstrip("0") or "0"


def random_integer(rng, most=400):
    digits = random_digits(rng, most)
    return digits if digits == "0" else rng.choice(["", "-"]) + digits


def random_decimal(rng, most=60):
    text = rng.choice(["", "-"]) + rng.choice(["0", random_digits(rng, most)])
    if rng.random() < 0.8:
        text += "." + "0" * rng.choice([0, 0, rng.randint(0, 35)]) + random_digits(rng, most)
    return text


# --- the model --------------------------------------------------------------------------------------------

def truncated(dividend, divisor):
    """The quotient truncated towards zero."""
    quotient = abs(dividend) // abs(divisor)
    return quotient if (dividend < 0) == (divisor < 0) else -quotient


def order(a, b):
    return str((a > b) - (a < b))


def integer_model(operation, a, b):
    a, b = int(a), int(b or 0)
    if operation == "/":
        return str(truncated(a, b)) if b else OVERFLOW + "/."
    if operation == "%":
        if b < 0 or (b == 0 and a != 0):
            return OVERFLOW + "%."
        return str(a - truncated(a, b) * b) if a else "0"
    if operation == "root":
        if a < 0:
            return "ERROR: Negative Number in function SquareRoot()."
        return str(math.isqrt(a)) if a else OVERFLOW + "/."
    if operation == "int":
        return str(a) if -2**31 <= a < 2**31 else "ERROR: Value out of bound of int."
    if operation == "longlong":
        return str(a) if -2**63 <= a < 2**63 else "ERROR: Value out of bound of LONGLONG."
    return {"parse": lambda: str(a), "+": lambda: str(a + b), "-": lambda: str(a - b),
            "*": lambda: str(a * b), "compare": lambda: order(a, b)}[operation]()


class Uncarried(Exception):
    """The case depends on a fraction that was rounded up to a whole unit: the model leaves it out."""


class Fixed:
    """A decimal, cut to a maximum of places if one is given, with what its text shows of the cut."""

    def __init__(self, value, places=None):
        self.places = places
        self.value = value
        if places is not None:
            self.value = value.quantize(Decimal(1).scaleb(-places), decimal.ROUND_HALF_DOWN)
        self.cut = self.value != value
        self.uncarried = bool(places) and math.trunc(self.value) != math.trunc(value)

    def rationalised(self):
        """Without the zeros that the cut left at the end; one place always stays."""
        self.cut = False
        self.places = 1
        return self

    def __str__(self):
        sign = "-" if self.value < 0 else ""
        whole = abs(math.trunc(self.value))
        if self.uncarried:
            return f"{sign}{whole - 1}.1{'0' * self.places}"[:LONGEST_TEXT]
        fraction = abs(self.value) - whole
        if not fraction:
            return f"{sign}{whole}"
        digits = f"{fraction:f}".partition(".")[2]
        return f"{sign}{whole}.{digits if self.cut else digits.rstrip('0')}"[:LONGEST_TEXT]

    def exact(self):
        if self.uncarried:
            raise Uncarried
        return self.value


def read(text, places):
    mantissa, _, exponent = text.upper().partition("E")
    value = Decimal(mantissa)
    if exponent.startswith("-"):
        return divided(value, Decimal(10) ** -int(exponent), places).rationalised()
    fixed = Fixed(value.scaleb(int(exponent or 0)), places)
    return fixed.rationalised() if exponent else fixed


def divided(a, b, places):
    """Two guard digits are truncated before the rounding."""
    if not a:
        return Fixed(Decimal(0))
    (an, ad), (bn, bd) = a.as_integer_ratio(), b.as_integer_ratio()
    return Fixed(Decimal(truncated(an * bd * 10 ** (places + 2), ad * bn)).scaleb(-places - 2), places)


def text_with_places(value, count, places):
    """Half a unit is added, away from zero; zeros at the end of the sum are dropped."""
    half = Decimal(5).scaleb(-count - 1) if count < places else Decimal(0)
    total = value + half.copy_sign(value)
    digits = f"{abs(total) % 1:f}".partition(".")[2].rstrip("0") or "0"
    return f"{'-' if total.is_signed() else ''}{abs(math.trunc(total))}.{digits[:count]}"


def decimal_model(operation, a, b, places):
    if operation == "parse":
        return str(read(a, places))
    x = read(a, places).exact()
    if operation == "text":
        if not x:
            raise Uncarried
        return text_with_places(x, int(b), places)
    whole = int(x.quantize(Decimal(1), decimal.ROUND_HALF_DOWN))
    if operation == "integer":
        return str(whole)
    if operation == "long":
        return str(whole) if -2**31 <= whole < 2**31 else "The Decimal value if to large to fit into a LONG"
    if operation == "longlong":
        whole = math.trunc(x)
        return str(whole) if -2**63 <= whole < 2**63 else "The Decimal value if to large to fit into a LONGLONG"
    if operation == "double":
        return "%.17g" % (float(x) or 0.0)
    y = read(b, places).exact()
    if operation == "/":
        return str(divided(x, y, places)) if y else OVERFLOW + "/."
    if operation == "*":
        return str(Fixed(x * y, places))
    if operation == "compare":
        return order(x, y)
    total = x + y if operation == "+" else x - y
    return str(Fixed(total))


# --- the comparison ---------------------------------------------------------------------------------------

INTEGER_OPERATIONS = ["parse", "+", "-", "*", "/", "%", "compare", "root", "int", "longlong"]
DECIMAL_OPERATIONS = ["parse", "+", "-", "*", "/", "compare", "text", "integer", "long", "longlong", "double"]


def integer_case(rng):
    operation = rng.choice(INTEGER_OPERATIONS)
    if operation in ("int", "longlong"):
        bound = 2**31 if operation == "int" else 2**63
        a = str(rng.choice([-1, 1]) * (rng.choice([0, bound, rng.randrange(bound)]) + rng.randint(-1, 1)))
    else:
        a = random_integer(rng)
    b = rng.choice([random_integer(rng), random_integer(rng, 40), a, str(int(a) + 1)])
    return f"integer {operation} {a} {b}", integer_model(operation, a, b)


def decimal_case(rng, places):
    operation = rng.choice(DECIMAL_OPERATIONS)
    a = random_decimal(rng, 19 if "long" in operation else 60)
    b = rng.choice([random_decimal(rng), random_decimal(rng, 5), a, a.lstrip("-")])
    if operation == "parse" and rng.random() < 0.5:
        exponent = rng.choice([rng.randint(0, 60), rng.randint(0, 3000)])
        a += rng.choice("eE") + rng.choice(["", "-", "+"]) + str(exponent)
    if operation == "text":
        b = str(rng.choice([rng.randint(0, 10), rng.randint(0, 2 * places + 2)]))
    return f"decimal {operation} {a} {b}", decimal_model(operation, a, b, places)


def make_cases(rng, count):
    places = 30
    cases = []
    while len(cases) < count:
        if len(cases) % 1000 == 999:
            places = rng.choice([30, 30, 0, 1, 2, 18, 60])
            cases.append((f"decimal places {places}", str(places)))
            continue
        try:
            cases.append(integer_case(rng) if rng.random() < 0.5 else decimal_case(rng, places))
        except Uncarried:
            pass
    return cases


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("evaluator", help="the program quillon_arithmetic")
    parser.add_argument("--cases", type=int, default=50_000)
    parser.add_argument("--seed", type=int, default=random.randrange(2**32))
    options = parser.parse_args()

    cases = make_cases(random.Random(options.seed), options.cases)
    answers = subprocess.run([options.evaluator], input="".join(line + "\n" for line, _ in cases), text=True,
                             stdout=subprocess.PIPE, check=True).stdout.splitlines()
    if len(answers) != len(cases):
        sys.exit(f"{len(cases)} cases, but {len(answers)} answers")
    wrong = [(line, expected, got) for (line, expected), got in zip(cases, answers) if got != expected]
    for line, expected, got in wrong[:10]:
        print(f"{line}\n  expected {expected}\n  got      {got}")
    counts = collections.Counter(" ".join(line.split()[:2]) for line, _ in cases)
    print(", ".join(f"{name}: {count}" for name, count in sorted(counts.items())))
    print(f"seed {options.seed}: {len(cases)} cases, {len(wrong)} differ")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
