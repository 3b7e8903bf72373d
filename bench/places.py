"""Writes what vorn-places has measured into a page: what it costs to know the place of a text.

The table stands in the page between two marks and is replaced there.
"""

import argparse
import json
import pathlib

import figures

# What vorn-places measures, and what the table says of it.
VISITORS = {"empty": "not placed", "following": "placed", "asking": "asking for each"}


def table(runs):
    rows = []
    for document, visitors in runs.items():
        times = [visitors[visitor]["ns"] for visitor in VISITORS]
        rows.append(
            [document, f"{visitors['empty']['texts']:,.0f}"]
            + [f"{time:.1f}" for time in times]
            + [f"{time - times[0]:.1f}" for time in times[1:]]
            + [f"{times[-1] / times[0]:.2f}"]
        )
    names = [*VISITORS.values(), "placed, beyond", "asking, beyond", "asking / not placed"]
    return figures.table_of(["document", "texts", *names], rows)


def per_text(run):
    return {"texts": run["texts"], "ns": run["cpu_time"] / run["texts"]}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path, help="what vorn-places wrote, JSON")
    parser.add_argument("--page", type=pathlib.Path, help="Markdown file; otherwise it prints")
    options = parser.parse_args()

    results = json.loads(options.results.read_text(encoding="utf-8"))
    runs = figures.best_of(
        results, per_text, lambda runs: min(runs, key=lambda run: run["ns"])
    )
    caption = figures.caption_of(results)
    content = f"\nNanoseconds per text; {caption}.\n\n{table(runs)}\n"
    if options.page:
        figures.write_part(options.page, "places.py", content)
    else:
        print(content, end="")


if __name__ == "__main__":
    main()
