"""Shows what vorn-structs has measured: draws the picture and writes the tables of the page.

They stand in the page between two marks and are replaced there.
"""

import argparse
import json
import math
import pathlib

import figures
import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plot  # noqa: E402 (after the choice of the backend)

# Reader: its name for people, and its colour.
READERS = {
    "library": ("nothing done", "#1b6ca8"),
    "library-copying": ("copying texts", "#7fb3d9"),
    "readConfig": ("readConfig", "#3a9a78"),
    "toml++": ("toml++", "#d9822b"),
    "cpptoml": ("cpptoml", "#c25b56"),
    "toml11": ("toml11", "#8d6fb8"),
}
# Those that fill the structs.
FILLING = ["readConfig", "toml++", "cpptoml", "toml11"]


def times_table(runs):
    names = [name for name, _ in READERS.values()]
    peers = FILLING[1:]
    rows = []
    for document, readers in runs.items():
        times = {reader: run["cpu_time"] for reader, run in readers.items()}
        config = times["readConfig"]
        rows.append(
            [document, f"{readers['readConfig']['bytes']:,.0f}"]
            + [figures.rounded(times[reader]) for reader in READERS]
            + [f"{config / times['library-copying']:.1f}"]
            + [f"{times[peer] / config:.1f}" for peer in peers]
        )
    ratios = ["readConfig / copying", *(f"{peer} / readConfig" for peer in peers)]
    return figures.table_of(["document", "bytes", *names, *ratios], rows)


def allocations_table(runs):
    rows = []
    for document, readers in runs.items():
        values = readers["readConfig"]["allocations_by_hand"]
        services = readers["readConfig"]["services"]
        beyond = [readers[reader]["allocations"] - values for reader in FILLING]
        rows.append([document, *(f"{count:,.0f}" for count in [services, values, *beyond])])
    names = [f"{READERS[reader][0]} beyond" for reader in FILLING]
    return figures.table_of(["document", "services", "of the values", *names], rows)


def draw_picture(picture, rates, caption):
    # The same figures make the same file, with text that stays text.
    plot.rcParams.update({"svg.hashsalt": "vorn", "svg.fonttype": "none", "font.size": 9})
    figure, axes = plot.subplots(figsize=(7.8, 3.6))
    figure.subplots_adjust(left=0.1, right=0.99, bottom=0.16, top=0.88)
    figures.bars(axes, [(reader, *look) for reader, look in READERS.items()], rates)
    # Left to itself, the axis ends far above the bars.
    fastest = max(rate for measured in rates.values() for rate in measured.values())
    axes.set_ylim(1, 10 ** math.ceil(math.log10(fastest)))
    axes.set_ylabel("MB/s (logarithmic)")
    handles, names = axes.get_legend_handles_labels()
    figure.legend(handles, names, loc="upper center", ncols=len(names), frameon=False)
    figure.text(0.5, 0.02, caption, color="#555555", horizontalalignment="center")
    figure.savefig(picture, metadata={"Date": None})


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path, help="what vorn-structs wrote, JSON")
    parser.add_argument("--page", type=pathlib.Path, required=True, help="Markdown file")
    parser.add_argument("--picture", type=pathlib.Path, required=True, help="SVG file")
    options = parser.parse_args()

    results = json.loads(options.results.read_text(encoding="utf-8"))
    caption = figures.caption_of(results)
    draw_picture(options.picture, figures.rates_of(results), caption)
    runs = figures.best_of(
        results, lambda run: run, lambda all_runs: min(all_runs, key=lambda run: run["cpu_time"])
    )
    content = (
        f"\n![MB/s, into structs]({options.picture.name})\n\nMicroseconds; {caption}.\n\n"
        f"{times_table(runs)}\nAllocations; the same run.\n\n{allocations_table(runs)}\n"
    )
    figures.write_part(options.page, "plot_structs.py", content)


if __name__ == "__main__":
    main()
