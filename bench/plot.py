"""Shows what vorn-bench has measured: draws the picture and writes the table of the page.

The table and the caption stand in the page between two marks and are replaced there.
"""

import argparse
import collections
import json
import math
import pathlib

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plot  # noqa: E402 (after the choice of the backend)

BEGIN = "<!-- Written by bench/plot.py from here -->\n"
END = "<!-- to here -->\n"

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


def rates_of(results):
    """Document: reader: MB/s, the best of the repetitions; noise only ever slows down."""
    rates = collections.defaultdict(lambda: collections.defaultdict(float))
    # They ran in any order.
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run["run_type"] == "iteration":
            document, reader = run["run_name"].rsplit("/", 1)
            rate = run["bytes_per_second"] / 1e6
            rates[document][reader] = max(rates[document][reader], rate)
    return rates


def caption_of(results):
    context = results["context"]
    return (
        f"{context.get('processor', 'unknown processor')}, {context['num_cpus']} CPUs; "
        f"{context['compiler']}; {context['date'][:10]}"
    )


def rounded(rate):
    return f"{rate:,.0f}" if rate >= 10 else f"{rate:.1f}"


def table_of(rates):
    names = [name for name, _ in READERS.values()]
    lines = [
        "| document | " + " | ".join(names) + " | times the fastest other |",
        "|---" + "|---:" * (len(names) + 1) + "|",
    ]
    for document, measured in rates.items():
        figures = [rounded(measured[reader]) for reader in READERS]
        times = measured["library"] / max(measured[peer] for peer in PEERS)
        lines.append(f"| {document} | " + " | ".join(figures) + f" | {times:.1f} |")
    return "\n".join(lines) + "\n"


def write_page(page, picture, rates, caption):
    text = page.read_text(encoding="utf-8")
    before, begin, rest = text.partition(BEGIN)
    _, end, after = rest.partition(END)
    if not begin or not end:
        raise SystemExit(f"{page}: the marks that the table stands between are missing")
    content = f"\n![MB/s]({picture.name})\n\nMB/s; {caption}.\n\n{table_of(rates)}\n"
    page.write_text(before + begin + content + end + after, encoding="utf-8")


def draw(axes, kind, sizes):
    """The bars of one kind of document, in groups by size."""
    drawn = [(reader, *look) for reader, look in READERS.items() if look[1]]
    width = 0.8 / len(drawn)
    for index, (reader, name, colour) in enumerate(drawn):
        places = [place + (index - (len(drawn) - 1) / 2) * width for place in range(len(sizes))]
        heights = [measured[reader] for measured in sizes.values()]
        axes.bar(places, heights, width, color=colour, label=name)
    axes.set_title(kind, fontsize=10)
    axes.set_xticks(range(len(sizes)), sizes)
    axes.set_xlim(-0.6, 2.6)
    axes.set_yscale("log")
    axes.set_axisbelow(True)
    axes.grid(axis="y", color="#e0e0e0")
    axes.spines[["top", "right"]].set_visible(False)


def draw_picture(picture, rates, caption):
    kinds = collections.defaultdict(dict)
    for document, measured in rates.items():
        kind, size = document.split("/")
        kinds[kind][size] = measured
    # The same figures make the same file, with text that stays text.
    plot.rcParams.update({"svg.hashsalt": "vorn", "svg.fonttype": "none", "font.size": 9})
    figure, panels = plot.subplots(2, 3, figsize=(10, 6.4), sharey=True)
    figure.subplots_adjust(
        left=0.07, right=0.99, bottom=0.1, top=0.88, wspace=0.05, hspace=0.3
    )
    for axes, (kind, sizes) in zip(panels.flat, kinds.items(), strict=True):
        draw(axes, kind, sizes)
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
    rates = rates_of(results)
    caption = caption_of(results)
    draw_picture(options.picture, rates, caption)
    write_page(options.page, options.picture, rates, caption)


if __name__ == "__main__":
    main()
