"""What the pictures and the tables of measurements share."""

import collections


def repetitions_of(results):
    """In the order of documents and readers; they ran in any order."""
    runs = (run for run in results["benchmarks"] if run["run_type"] == "iteration")
    return sorted(runs, key=lambda run: run["family_index"])


def collected(results, value_of):
    """Document: reader: a value for each of the repetitions."""
    values = collections.defaultdict(lambda: collections.defaultdict(list))
    for run in repetitions_of(results):
        document, reader = run["run_name"].rsplit("/", 1)
        values[document][reader].append(value_of(run))
    return values


def best_of(results, value_of, best):
    """Document: reader: the best of the repetitions; noise only ever slows down."""
    return {
        document: {reader: best(values) for reader, values in readers.items()}
        for document, readers in collected(results, value_of).items()
    }


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
    axes.yaxis.set_major_formatter("{x:,.0f}")
    axes.set_axisbelow(True)
    axes.grid(axis="y", color="#e0e0e0")
    axes.spines[["top", "right"]].set_visible(False)
