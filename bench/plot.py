"""Shows what vorn-bench has measured: draws the picture and writes the tables of the page.

The tables and the captions stand in the page between two marks and are replaced there.
"""

import argparse
import collections
import json
import math
import pathlib

import figures
import matplotlib
import ratios
from readers import JSON, LIMIT, READERS, TOML, names_of

matplotlib.use("svg")
import matplotlib.pyplot as plot  # noqa: E402 (after the choice of the backend)

# What is shown of the processor's counters.
COUNTED = ["library", "library-settings", "toml++", "cpptoml", "simdjson", "RapidJSON"]


def toml_table(rates):
    shown = [reader for reader in READERS if reader not in [*JSON, LIMIT]]
    rows = [
        [document, *(figures.rounded(measured[reader]) for reader in shown)]
        + [f"{ratios.of_fastest(measured, TOML):.1f}"]
        for document, measured in rates.items()
    ]
    return figures.table_of(["document", *names_of(shown), "times the fastest other"], rows)


def json_table(rates, sizes):
    shown = ["library", *JSON, LIMIT]
    rows = []
    for document, measured in rates.items():
        size = sizes[document]["simdjson"] / sizes[document]["library"]
        times = [ratios.of_fastest(measured, [reader]) for reader in [*JSON, LIMIT]]
        rows.append(
            [document, f"{size:.0%}"]
            + [figures.rounded(measured[reader]) for reader in shown]
            + [*(f"{ratio:.2f}" for ratio in times[:-1]), f"{times[-1]:.0%}"]
        )
    columns = ["document", "size of the twin", *names_of(shown)]
    columns += [*(f"times {name}" for name in names_of(JSON)), "share of the limit"]
    return figures.table_of(columns, rows)


def smallest(rates):
    """A sentence with the smallest ratios."""
    toml, *json_times = (
        min(ratios.of_fastest(measured, peers) for measured in rates.values())
        for peers in [TOML, *([reader] for reader in JSON)]
    )
    of_json = " and ".join(
        f"{ratio:.2f} times {name}" for ratio, name in zip(json_times, names_of(JSON), strict=True)
    )
    return (
        f"The smallest ratios of this run: {toml:.1f} times the fastest other parser of TOML, "
        f"{of_json}.\n"
    )


def counters_table(results):
    """Cycles and instructions per byte, if they were counted; a sentence if not."""
    if not all("cycles_per_byte" in run for run in figures.repetitions_of(results)):
        return "Cycles and instructions of the processor cannot be counted on this machine.\n"
    cycles, instructions = (
        figures.best_of(results, lambda run: run[counter], min)
        for counter in ["cycles_per_byte", "instructions_per_byte"]
    )
    rows = [
        [document]
        + [f"{cycles[document][reader]:.2f}" for reader in COUNTED]
        + [f"{instructions[document]['library']:.2f}"]
        for document in cycles
    ]
    columns = ["document", *names_of(COUNTED), "instructions of vorn_parsers"]
    return "Cycles per byte of TOML.\n\n" + figures.table_of(columns, rows)


def content_of(results, picture):
    rates = figures.rates_of(results)
    sizes = figures.best_of(results, lambda run: run["input_bytes"], max)
    caption = figures.caption_of(results)
    json_caption = f"simdjson for {results['context']['simdjson']}"
    return (
        f"\n![MB/s]({picture.name})\n\nMB/s; {caption}.\n\n{toml_table(rates)}\n"
        f"MB/s of TOML, the same run; {json_caption}.\n\n{json_table(rates, sizes)}\n"
        f"{smallest(rates)}\n{counters_table(results)}\n"
    )


def draw_picture(picture, rates, caption):
    kinds = collections.defaultdict(dict)
    for document, measured in rates.items():
        kind, size = document.split("/")
        kinds[kind][size] = measured
    drawn = [(reader, *look) for reader, look in READERS.items() if look[1]]
    # The same figures make the same file, with text that stays text.
    plot.rcParams.update({"svg.hashsalt": "vorn", "svg.fonttype": "none", "font.size": 9})
    columns = math.ceil(len(kinds) / 2)
    # As narrow as it can be read on a page of text, and on a telephone with little scrolling.
    figure, panels = plot.subplots(2, columns, figsize=(1 + 1.7 * columns, 4.8), sharey=True)
    figure.subplots_adjust(
        left=0.1, right=0.99, bottom=0.12, top=0.82, wspace=0.05, hspace=0.35
    )
    for axes in panels.flat[len(kinds) :]:
        axes.remove()
    for axes, (kind, sizes) in zip(panels.flat, kinds.items()):
        figures.bars(axes, drawn, sizes)
        axes.set_title(kind, fontsize=9)
        axes.set_xlim(-0.6, 2.6)
    # Left to itself, the common axis ends far above the bars.
    fastest = max(measured[reader] for measured in rates.values() for reader, *_ in drawn)
    panels[0, 0].set_ylim(1, 1.5 * fastest)
    for axes in panels[:, 0]:
        axes.set_ylabel("MB/s (logarithmic)")
    handles, names = panels[0, 0].get_legend_handles_labels()
    figure.legend(handles, names, loc="upper center", ncols=math.ceil(len(names) / 2), frameon=False)
    figure.text(0.5, 0.02, caption, color="#555555", horizontalalignment="center")
    figure.savefig(picture, metadata={"Date": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path, help="what vorn-bench wrote, JSON")
    parser.add_argument("--page", type=pathlib.Path, required=True, help="Markdown file")
    parser.add_argument("--picture", type=pathlib.Path, required=True, help="SVG file")
    options = parser.parse_args()

    results = json.loads(options.results.read_text(encoding="utf-8"))
    rates = figures.rates_of(results)
    draw_picture(options.picture, rates, figures.caption_of(results))
    figures.write_part(options.page, "plot.py", content_of(results, options.picture))


if __name__ == "__main__":
    main()
