"""What the pictures and the tables of measurements share."""

import collections


def best_of(results, value_of, better):
    """Document: reader: the best of the repetitions; noise only ever slows down."""
    best = collections.defaultdict(dict)
    # They ran in any order.
    for run in sorted(results["benchmarks"], key=lambda run: run["family_index"]):
        if run["run_type"] == "iteration":
            document, reader = run["run_name"].rsplit("/", 1)
            measured = best[document]
            value = value_of(run)
            measured[reader] = better(measured.get(reader, value), value)
    return best


def rates_of(results):
    """Document: reader: MB/s."""
    return best_of(results, lambda run: run["bytes_per_second"] / 1e6, max)


def caption_of(results):
    context = results["context"]
    return (
        f"{context.get('processor', 'unknown processor')}, {context['num_cpus']} CPUs; "
        f"{context['compiler']}; {context['date'][:10]}"
    )


def rounded(value):
    return f"{value:,.0f}" if value >= 10 else f"{value:.1f}"


def table_of(columns, rows):
    """In Markdown; the first column has names, the others numbers."""
    lines = [columns, ["---"] + ["---:"] * (len(columns) - 1), *rows]
    first, marks, *rest = ("| " + " | ".join(line) + " |" for line in lines)
    return "\n".join([first, marks.replace(" ", ""), *rest]) + "\n"


def write_part(page, script, content):
    """Replaces what stands in a page between two marks."""
    begin = f"<!-- Written by bench/{script} from here -->\n"
    end = "<!-- to here -->\n"
    text = page.read_text(encoding="utf-8")
    before, begins, rest = text.partition(begin)
    _, ends, after = rest.partition(end)
    if not begins or not ends:
        raise SystemExit(f"{page}: the marks that {script} writes between are missing")
    page.write_text(before + begin + content + end + after, encoding="utf-8")


def bars(axes, drawn, groups):
    """Bars of each reader in each group; `drawn` has their names in results, names and colours."""
    width = 0.8 / len(drawn)
    for index, (reader, name, colour) in enumerate(drawn):
        places = [place + (index - (len(drawn) - 1) / 2) * width for place in range(len(groups))]
        heights = [measured[reader] for measured in groups.values()]
        axes.bar(places, heights, width, color=colour, label=name)
    axes.set_xticks(range(len(groups)), groups)
    axes.set_yscale("log")
    axes.set_axisbelow(True)
    axes.grid(axis="y", color="#e0e0e0")
    axes.spines[["top", "right"]].set_visible(False)
