#!/usr/bin/env python3
"""Runs the programs of the benchmarks and prints the tables of docs/performance.md.

`scripts/benchmark` builds them before. With --quick, the large documents are left out.
"""
import sys

from programs import document, instructions_per_byte, run

ROUNDS = 4
QUICK = "--quick" in sys.argv[1:]


def table(*rows):
    print("| " + " | ".join(rows[0]) + " |")
    print("|" + "|".join(["---"] + ["---:"] * (len(rows[0]) - 1)) + "|")
    for row in rows[1:]:
        print("| " + " | ".join(row) + " |")
    print(flush=True)


def best(works, file, iterations):
    """The best time of each of the works, which take turns, since the clock of a busy machine swings."""
    times = {}
    for _ in range(ROUNDS):
        for work in works:
            seconds = run(*work, file, iterations)["best"]
            times[work] = min(seconds, times.get(work, seconds))
    return times


EXPAT = ("baselines8", "parse")
ROADS = [
    ("expat alone, 8-bit, empty handlers", EXPAT),
    ("expat alone, 16-bit, empty handlers", ("baselines16", "parse")),
    ("read into objects", ("orders", "parse")),
    ("read, no patterns in the schema", ("orders_without_patterns", "parse")),
    ("write", ("orders", "write")),
    ("write, no patterns", ("orders_without_patterns", "write")),
    ("read and write", ("orders", "roundtrip")),
    ("read and write, no patterns", ("orders_without_patterns", "roundtrip")),
    ("read Fast Infoset, no patterns", ("orders_without_patterns", "fi-read")),
    ("write Fast Infoset, no patterns", ("orders_without_patterns", "fi-write")),
    ("read Fast Infoset, suggested values, no patterns", ("orders_without_patterns", "fi-suggested-read")),
    ("write Fast Infoset, suggested values, no patterns", ("orders_without_patterns", "fi-suggested-write")),
]


def roads():
    file = document(1000)
    times = best([work for _, work in ROADS], file, 20)
    rows = [("1,000 orders", "ms", "speed, expat = 1", "instructions per byte")]
    for name, work in ROADS:
        rows.append((name, f"{times[work] * 1e3:.1f}", f"{times[EXPAT] / times[work]:.2f}",
                     f"{instructions_per_byte(*work, document(200)):.0f}"))
    table(*rows)


def sizes():
    file = document(1000)
    rows = [("1,000 orders", "bytes", "of the text")]
    for name, operation in [("Fast Infoset", "fi-write"), ("Fast Infoset, suggested values", "fi-suggested-write"),
                            ("gzip", "gzip-write"), ("zlib", "zlib-write")]:
        written = run("orders_without_patterns", operation, file, 1)["out"]
        rows.append((name, f"{written:,.0f}", f"{written / file.stat().st_size:.3f}"))
    table(*rows)


def compression():
    file = document(200)
    library = "orders_without_patterns"
    rows = [("200 orders, no patterns", "instructions per byte", "text and zlib alone", "beyond")]
    cost = {operation: instructions_per_byte(library, operation, file) for operation in
            ("parse", "write", "gzip-read", "gzip-write", "zlib-read", "zlib-write")}
    zlib = {operation: instructions_per_byte("baselines8", operation, file) for operation in ("inflate", "deflate")}
    for form in "gzip", "zlib":
        for road, text, alone in ("read", "parse", "inflate"), ("write", "write", "deflate"):
            both = cost[text] + zlib[alone]
            rows.append((f"{form}, {road}", f"{cost[f'{form}-{road}']:.0f}", f"{both:.0f}",
                         f"{cost[f'{form}-{road}'] / both - 1:+.1%}"))
    table(*rows)


def small_documents():
    file = document(1)
    rows = [(f"1 order, {file.stat().st_size} bytes", "microseconds", "allocations")]
    for name, work in ROADS[:10]:
        figures = run(*work, file, 5000)
        rows.append((name, f"{figures['best'] * 1e6:.1f}", f"{figures['allocations']:.0f}"))
    table(*rows)


def memory():
    rows = [("Peak of resident memory", "MB of text", "MB beyond the input", "of the text")]
    for name, operation, orders in [("tree and objects", "parse", 19000), ("records dropped as they end", "records", 19000),
                                    ("records dropped as they end", "records", 190000)]:
        file = document(orders)
        size = file.stat().st_size
        start = run("orders", operation, document(1), 1)["peak"] * 1024
        # The program holds the text of a document that it reads from memory.
        beyond = run("orders", operation, file, 1)["peak"] * 1024 - start - (size if operation == "parse" else 0)
        rows.append((name, f"{size / 1e6:.0f}", f"{beyond / 1e6:.1f}", f"{beyond / size:.2f}"))
    table(*rows)


def growth():
    rows = [("Orders", "MB of text", "read, ns per byte", "read and write, ns per byte", "Fast Infoset read, ns per byte")]
    for orders in (10, 100, 1000, 10000, 100000):
        file = document(orders)
        size = file.stat().st_size
        works = [("orders_without_patterns", operation) for operation in ("parse", "roundtrip", "fi-read")]
        times = best(works, file, max(1, 20000 // orders))
        rows.append((f"{orders:,}", f"{size / 1e6:.2f}", *(f"{times[work] / size * 1e9:.1f}" for work in works)))
    table(*rows)


for part in [roads, sizes, compression, small_documents] + ([] if QUICK else [memory, growth]):
    part()
