#!/usr/bin/env python3
"""Puts the results of compare-peers into the pages: the picture, and a table at each marker.

usage: report-peers.py RUN.json

A marker is a comment `<!-- peers: PATTERN -->`; what follows it, up to `<!-- end of peers -->`,
becomes the table of the rows that the regular expression PATTERN matches.
"""

import json
import math
import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGES = [ROOT / "README.md", ROOT / "docs/performance.md"]
PICTURE = ROOT / "docs/pictures/performance.svg"

PEERS = ["ZRString", "ICU", "QString", "std::u16string"]
LABELS = ["ZRString", "raw ICU", "QString", "std::u16string"]
COLOURS = ["#e8590c", "#1c7ed6", "#2f9e44", "#9c5fd6"]


HEAP = "heap"  # how the rows of memory begin: they are bytes, not times


def least_times(run):
    """For each row, the least CPU time in ns of each peer, which other work disturbs least, or the
    bytes of memory."""
    times = {}
    for result in run["benchmarks"]:
        if result["run_type"] == "iteration":
            row, peer = result["run_name"].split("|")
            peers = times.setdefault((result["family_index"], row), {})
            value = result.get("bytes", result["cpu_time"])
            peers[peer] = min(peers.get(peer, math.inf), value)
    rows = {}
    for (_, row), peers in sorted(times.items()):
        rows.setdefault(row, {}).update(peers)
    return rows


def shown(time):
    for unit, factor in ("ns", 1), ("µs", 1e3), ("ms", 1e6):
        if time < 999.5 * factor:
            break
    digits = max(0, 2 - math.floor(math.log10(time / factor)))
    return f"{time / factor:.{min(digits, 2)}f} {unit}"


def table(rows):
    lines = ["| | " + " | ".join(LABELS) + " |", "|---|" + "---:|" * len(PEERS)]
    for row, times in rows.items():
        form = "{:,.0f} B".format if row.startswith(HEAP) else shown
        cells = [form(times[peer]) if peer in times else "–" for peer in PEERS]
        lines.append(f"| {row} | " + " | ".join(cells) + " |")
    return "\n".join(lines)


def system(run):
    context = run["context"]
    repetitions = 1 + max(result.get("repetition_index", 0) for result in run["benchmarks"])
    return textwrap.fill(
        f"Least CPU time of {repetitions} repetitions, all in one run: {context['processor']}, "
        f"{context['mhz_per_cpu'] / 1000:.1f} GHz; {context['versions']}.", 100)


def picture(rows):
    """Each peer's time over ZRString's as a mark on a logarithmic axis, below the name of its row,
    so that the picture can be read on a phone. It has a background: on a page's own, dark or light,
    no one grey is legible."""
    ratios = {row: {peer: time / times["ZRString"] for peer, time in times.items()}
              for row, times in rows.items() if not row.startswith(HEAP)}
    flat = [ratio for peers in ratios.values() for ratio in peers.values()]
    low, high = math.log10(min(flat)) - 0.08, math.log10(max(flat)) + 0.08
    margin, top, step = 16, 72, 37
    width, bottom = 440, top + step * len(ratios)

    def x(ratio):
        return margin + (width - 2 * margin) * (math.log10(ratio) - low) / (high - low)

    def mark(peer, cx, cy):
        number = PEERS.index(peer)
        shapes = [f'<circle cx="{cx:.1f}" cy="{cy}" r="5"',
                  f'<rect x="{cx - 4.5:.1f}" y="{cy - 4.5}" width="9" height="9"',
                  f'<path d="M{cx:.1f} {cy - 6}l5.5 10h-11z"',
                  f'<path d="M{cx:.1f} {cy - 6}l6 6l-6 6l-6 -6z"']
        return f'{shapes[number]} fill="{COLOURS[number]}"/>'

    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{bottom + 34}" '
        f'viewBox="0 0 {width} {bottom + 34}" '
        'font-family="Helvetica, Arial, sans-serif" font-size="13">',
        "<title>Time of each peer over that of ZRString</title>",
        "<style>text{fill:#444}line{stroke:#ccc}.one{stroke:#e8590c}</style>",
        '<rect width="100%" height="100%" fill="#fff"/>']
    for number, label in enumerate(LABELS):
        parts += [mark(PEERS[number], 20 + 104 * number, 16),
                  f'<text x="{30 + 104 * number}" y="20">{label}</text>']
    for ratio in [0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100]:
        if low <= math.log10(ratio) <= high:
            one = ' class="one"' if ratio == 1 else ""
            parts += [f'<line{one} x1="{x(ratio):.1f}" y1="{top - 22}" x2="{x(ratio):.1f}" '
                      f'y2="{bottom - 6}"/>',
                      f'<text x="{x(ratio):.1f}" y="{top - 28}" text-anchor="middle">'
                      f"{ratio:g}×</text>"]
    for number, (row, peers) in enumerate(ratios.items()):
        y = top + step * number
        parts.append(f'<text x="{margin}" y="{y - 3}" stroke="#fff" stroke-width="4" '
                     f'paint-order="stroke">{row}</text>')
        parts += [mark(peer, x(peers[peer]), y + 7) for peer in reversed(PEERS) if peer in peers]
    parts += [f'<text x="{x(1) - 8:.1f}" y="{bottom + 16}" text-anchor="end">← faster</text>',
              f'<text x="{x(1) + 8:.1f}" y="{bottom + 16}">slower than ZRString →</text>', "</svg>"]
    return "\n".join(parts) + "\n"


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: report-peers.py RUN.json")
    run = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    rows = least_times(run)
    PICTURE.write_text(picture(rows), encoding="utf-8")

    def filled(match):
        chosen = {row: times for row, times in rows.items() if re.search(match[1], row)}
        rows_and_system = f"{table(chosen)}\n\n{system(run)}"
        return f"<!-- peers: {match[1]} -->\n{rows_and_system}\n<!-- end of peers -->"

    for page in PAGES:
        text = page.read_text(encoding="utf-8")
        text, count = re.subn(r"<!-- peers: (.*?) -->.*?<!-- end of peers -->", filled, text,
                              flags=re.DOTALL)
        if count == 0:
            sys.exit(f"{page} has no marker for the table")
        page.write_text(text, encoding="utf-8")


main()
