"""Writes what vorn-conversions has measured into a page: what it costs to convert a text.

The table stands in the page between two marks and is replaced there.
"""

import argparse
import json
import pathlib

import figures


def table(times):
    rows = [
        [text, figures.rounded(ways["exported"]), figures.rounded(ways["stated"])]
        for text, ways in times.items()
    ]
    return figures.table_of(["text", "exported function", "stated way"], rows)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path, help="what vorn-conversions wrote, JSON")
    parser.add_argument("--page", type=pathlib.Path, help="Markdown file; otherwise it prints")
    options = parser.parse_args()

    results = json.loads(options.results.read_text(encoding="utf-8"))
    times = figures.best_of(results, lambda run: run["cpu_time"], min)
    content = f"\nNanoseconds; {figures.caption_of(results)}.\n\n{table(times)}\n"
    if options.page:
        figures.write_part(options.page, "conversions.py", content)
    else:
        print(content, end="")


if __name__ == "__main__":
    main()
