"""The ratios of one run.  As a program it prints them: ratios.py RESULTS

Each is the time of another reader divided by the library's.  Parsers of JSON have read the
document's twin meanwhile, so that both have got through the same content.
"""

import json
import pathlib
import statistics
import sys

import figures

MODELS = ["toml++", "cpptoml"]

# Ratio: the smallest that is aimed at.
AIMS = {"TOML": 10, "simdjson": 0.45, "RapidJSON": 1}


def of_fastest(measured, peers):
    """How many times as fast as the fastest of the peers."""
    return measured["library"] / max(measured[peer] for peer in peers)


def of_aims(measured):
    """Ratio: its value, for those that AIMS names."""
    return {
        "TOML": of_fastest(measured, MODELS),
        "simdjson": of_fastest(measured, ["simdjson"]),
        "RapidJSON": of_fastest(measured, ["RapidJSON"]),
    }


def slowness(results):
    """Document: how much slower than the best the library's median repetition is, in percent."""
    rates = figures.collected(results, lambda run: run["bytes_per_second"])
    return {
        document: (1 - statistics.median(measured["library"]) / max(measured["library"])) * 100
        for document, measured in rates.items()
    }


def shown(name, ratio):
    """A ratio that misses its aim gets a mark."""
    mark = "!" if ratio < AIMS[name] else " "
    return f"{ratio:.1f}{mark}" if AIMS[name] >= 10 else f"{ratio:.2f}{mark}"


def print_ratios(results):
    slow = slowness(results)
    rates = figures.rates_of(results)
    readers = ["library", *MODELS, "simdjson", "RapidJSON"]
    width = max(map(len, rates))
    columns = [*readers, *(f"/ {name}" for name in AIMS), "median"]
    print(" " * width, *(f"{column:>{max(9, len(column))}}" for column in columns))
    for document, measured in rates.items():
        ratios = of_aims(measured)
        cells = [f"{figures.rounded(measured[reader])} " for reader in readers]
        cells += [shown(name, ratio) for name, ratio in ratios.items()]
        cells.append(f"-{slow[document]:.0f}% ")
        padded = (f"{cell:>{max(9, len(name))}}" for cell, name in zip(cells, columns, strict=True))
        print(f"{document:{width}}", *padded)
    aims = ", ".join(f"{name} {aim}" for name, aim in AIMS.items())
    print(f"\nMB/s of TOML, the best repetition of each; ! misses the aim ({aims}).")
    print("median: how much slower the library's median repetition is; much of it is noise.")
    print(f"{figures.caption_of(results)}.")


if __name__ == "__main__":
    print_ratios(json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")))
