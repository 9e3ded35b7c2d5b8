"""How the programs of the benchmarks are run, and what they print is read."""
import re
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
BUILD = HERE.parent / "build/release/benchmarks"
MORE = 8


def document(orders):
    """A document of so many orders, made when it is first asked for."""
    path = BUILD / f"documents/orders-{orders}.xml"
    if not path.exists():
        path.parent.mkdir(exist_ok=True)
        subprocess.run([sys.executable, HERE / "make_orders.py", str(orders), "7", path], check=True)
    return path


def run(program, operation, file, iterations):
    """The figures that the program prints, by name: bytes, seconds, allocations, KB."""
    command = [BUILD / program, operation, file, str(iterations)]
    line = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return {name: float(value) for name, value in re.findall(r"(\w+)=(\S+)", line)}


def instructions_per_byte(program, operation, file):
    """Of one more iteration, for each byte of the text document. What starting up takes cancels out, all but the
    chance in expat's hash table, which has a new salt in each run; it spreads over the iterations."""

    def instructions(iterations):
        command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                   BUILD / program, operation, file, str(iterations)]
        log = subprocess.run(command, check=True, capture_output=True, text=True).stderr
        return int(re.search(r"Collected : (\d+)", log).group(1))

    return (instructions(1 + MORE) - instructions(1)) / MORE / file.stat().st_size
