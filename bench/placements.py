"""Shows how fast the library is where its code was moved: placements.py moved-BYTES-ROUND.json...

In MB/s, the best repetition of each, and what is lost against the best place.
"""

import collections
import json
import pathlib
import sys

import figures


def main():
    rates = collections.defaultdict(lambda: collections.defaultdict(int))
    for path in map(pathlib.Path, sys.argv[1:]):
        results = json.loads(path.read_text(encoding="utf-8"))
        bytes_moved = int(path.stem.split("-")[1])
        for document, measured in figures.rates_of(results).items():
            best = rates[document]
            best[bytes_moved] = max(best[bytes_moved], measured["library"])
    places = sorted({place for moved in rates.values() for place in moved})
    width = max(map(len, rates))
    print(f"{'bytes moved':{width}}", *(f"{place:>13}" for place in places))
    for document, moved in rates.items():
        best = max(moved.values())
        cells = (f"{moved[place]:8,.0f} -{1 - moved[place] / best:3.0%}" for place in places)
        print(f"{document:{width}}", *(f"{cell:>13}" for cell in cells))


if __name__ == "__main__":
    main()
