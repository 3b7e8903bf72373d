"""Shows what vorn-bench has measured: draws the picture and writes the table of the page.

The table and the caption stand in the page between two marks and are replaced there.
"""

import argparse
import collections
import json
import math
import pathlib

import figures
import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plot  # noqa: E402 (after the choice of the backend)

# Reader: its name for people, and its colour.  Those without a colour are not drawn.
READERS = {
    "library": ("vorn_parsers", "#1b6ca8"),
    "library-copying": ("copying texts", "#7fb3d9"),
    "library-file": ("from a file", None),
    "pipeline": ("pipeline alone", "#9aa0a6"),
    "toml++": ("toml++", "#d9822b"),
    "cpptoml": ("cpptoml", "#c25b56"),
    "toml11": ("toml11", "#8d6fb8"),
}
PEERS = ["toml++", "cpptoml", "toml11"]


def table_of(rates):
    names = [name for name, _ in READERS.values()]
    rows = []
    for document, measured in rates.items():
        times = measured["library"] / max(measured[peer] for peer in PEERS)
        rates_of_readers = [figures.rounded(measured[reader]) for reader in READERS]
        rows.append([document, *rates_of_readers, f"{times:.1f}"])
    return figures.table_of(["document", *names, "times the fastest other"], rows)


def draw_picture(picture, rates, caption):
    kinds = collections.defaultdict(dict)
    for document, measured in rates.items():
        kind, size = document.split("/")
        kinds[kind][size] = measured
    drawn = [(reader, *look) for reader, look in READERS.items() if look[1]]
    # The same figures make the same file, with text that stays text.
    plot.rcParams.update({"svg.hashsalt": "vorn", "svg.fonttype": "none", "font.size": 9})
    figure, panels = plot.subplots(2, 3, figsize=(10, 6.4), sharey=True)
    figure.subplots_adjust(
        left=0.07, right=0.99, bottom=0.1, top=0.88, wspace=0.05, hspace=0.3
    )
    for axes, (kind, sizes) in zip(panels.flat, kinds.items(), strict=True):
        figures.bars(axes, drawn, sizes)
        axes.set_title(kind, fontsize=10)
        axes.set_xlim(-0.6, 2.6)
    # Left to itself, the common axis ends far above the bars.
    fastest = max(rate for measured in rates.values() for rate in measured.values())
    panels[0, 0].set_ylim(1, 10 ** math.ceil(math.log10(fastest)))
    for axes in panels[:, 0]:
        axes.set_ylabel("MB/s (logarithmic)")
    handles, names = panels[0, 0].get_legend_handles_labels()
    figure.legend(handles, names, loc="upper center", ncols=len(names), frameon=False)
    figure.text(0.5, 0.02, caption, fontsize=8, color="#555555", horizontalalignment="center")
    figure.savefig(picture, metadata={"Date": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path, help="what vorn-bench wrote, JSON")
    parser.add_argument("--page", type=pathlib.Path, required=True, help="Markdown file")
    parser.add_argument("--picture", type=pathlib.Path, required=True, help="SVG file")
    options = parser.parse_args()

    results = json.loads(options.results.read_text(encoding="utf-8"))
    rates = figures.rates_of(results)
    caption = figures.caption_of(results)
    draw_picture(options.picture, rates, caption)
    content = f"\n![MB/s]({options.picture.name})\n\nMB/s; {caption}.\n\n{table_of(rates)}\n"
    figures.write_part(options.page, "plot.py", content)


if __name__ == "__main__":
    main()
