#!/usr/bin/env python3
"""Turns what brisal_bench measured into a page or a table.

usage: bench_page.py JSON --html FILE | --markdown FILE

The page shows a bar for each contender of each row, or the plots of jobs that grow. The table takes
the place of the one between the two comments in FILE.
"""
import html
import json
import math
import re
import sys
from pathlib import Path

LONGEST = 6  # bars end at so many times the library's own
STYLE = """
:root { color-scheme: light dark; --ink: #1c2430; --soft: #667085; --line: #d8dde5; --back: #fbfbfa;
  --wide: #1f6feb; --plain: #8fb7f5; --limit: #9aa3af; --peer: #e0813a; }
@media (prefers-color-scheme: dark) { :root { --ink: #e6e9ef; --soft: #98a2b3; --line: #333b47;
  --back: #14181f; --wide: #5b9dff; --plain: #2f5d9e; --limit: #5f6977; --peer: #c9702d; } }
body { font: 15px/1.5 system-ui, sans-serif; color: var(--ink); background: var(--back);
  max-width: 68rem; margin: 0 auto; padding: 2rem 1.25rem 4rem; }
h1 { font-size: 1.7rem; margin: 0; } p { color: var(--soft); max-width: 46rem; }
summary { cursor: pointer; font-weight: 600; padding: .5rem 0; border-bottom: 1px solid var(--line); }
summary span { float: right; font-weight: 400; color: var(--soft); }
.row { display: grid; grid-template-columns: 15rem 1fr; gap: .25rem 1rem; padding: .6rem 0;
  border-bottom: 1px solid var(--line); break-inside: avoid; }
.bar { display: grid; grid-template-columns: 5.5rem 1fr; align-items: center; font-size: .8rem; }
.bar i { display: inline-block; height: .7rem; border-radius: 2px; vertical-align: middle; }
.bar b { font-weight: 400; color: var(--soft); padding-left: .4rem; }
.wide { background: var(--wide); } .plain { background: var(--plain); }
.limit { background: var(--limit); } .peer { background: var(--peer); }
.cut { border-right: 3px dotted var(--back); }
.numbers { display: flex; gap: 2.5rem; flex-wrap: wrap; margin: 1.25rem 0; }
.numbers b { display: block; font-size: 1.6rem; } .numbers div { color: var(--soft); }
figure { margin: 0; } .plots { display: grid; grid-template-columns: repeat(auto-fill, minmax(20rem, 1fr)); gap: 1.5rem; }
svg { width: 100%; } svg text { fill: var(--soft); font-size: 11px; } svg .grid { stroke: var(--line); }
svg polyline { fill: none; stroke: var(--wide); stroke-width: 2; } svg circle { fill: var(--wide); }
svg .linear { stroke: var(--limit); stroke-dasharray: 4 4; }
@media (max-width: 40rem) { .row { grid-template-columns: 1fr; } }
"""


def time_text(nanoseconds):
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


class Row:
    def __init__(self, entry):
        self.name = entry["row"]
        self.shape = entry["shape"]
        self.left_out = entry["left out"]
        times = sorted(entry["times"], key=lambda time: time["ns"])
        self.wide, self.plain = (next(t for t in times if t["name"] == n) for n in ("wide", "plain"))
        self.limit = next((t for t in times if t["role"] == "limit"), None)
        self.peers = [t for t in times if t["role"] == "peer"]

    @property
    def lead(self):
        return self.peers[0]["ns"] / self.wide["ns"] if self.peers else None

    @property
    def to_limit(self):
        return self.wide["ns"] / self.limit["ns"] if self.limit else None


def mean(values):
    return math.exp(sum(map(math.log, values)) / len(values))


def leads_of(rows):
    return [row.lead for row in rows if row.lead]


def bar(row, time, kind, label):
    ratio = time["ns"] / row.wide["ns"]
    width = 62 * min(ratio, LONGEST) / LONGEST
    cut = " cut" if ratio > LONGEST else ""
    title = f"{time['name']}: ± {time['spread']:.0%}"
    return (f'<div class="bar" title="{html.escape(title)}"><span>{label}</span><span>'
            f'<i class="{kind}{cut}" style="width:{width:.1f}%"></i>'
            f'<b>{time_text(time["ns"])}{"" if kind == "wide" else f" · {ratio:.2f}"}</b></span></div>')


def bars(row):
    lines = [bar(row, row.wide, "wide", "Brisal"), bar(row, row.plain, "plain", "plain column")]
    if row.limit:
        lines.append(bar(row, row.limit, "limit", "limit"))
    lines += [bar(row, peer, "peer", html.escape(peer["name"])) for peer in row.peers]
    return f'<div class="row"><div>{html.escape(row.name)}</div><div>{"".join(lines)}</div></div>'


def section(shape, rows):
    leads = leads_of(rows)
    lead = f"{mean(leads):.1f} times ahead, {min(leads):.2f} at worst" if leads else "no peer"
    return (f"<details{' open' if len(rows) < 12 else ''}><summary>{html.escape(shape)}"
            f"<span>{len(rows)} rows · {lead}</span></summary>{''.join(map(bars, rows))}</details>")


def page(title, text, body):
    return (f'<!DOCTYPE html><html lang="en"><meta charset="utf-8">'
            f'<meta name="viewport" content="width=device-width"><title>{title}</title>'
            f"<style>{STYLE}</style><h1>{title}</h1><p>{text}</p>{body}</html>\n")


def rows_page(data):
    rows = [Row(entry) for entry in data["rows"]]
    leads = leads_of(rows)
    numbers = [(str(len(rows)), "rows")]
    if leads:
        ahead = sum(lead >= 1 for lead in leads)
        numbers += [(f"{ahead} of {len(leads)}", "rows ahead of every peer"),
                    (f"{mean(leads):.2f} ×", "as fast as the best peer (geometric mean)")]
    head = "".join(f"<div><b>{value}</b>{what}</div>" for value, what in numbers)
    text = (f"{html.escape(data['processor'])}, GCC {data['compiler']}. Medians of one run, turn by turn, "
            "at several places in memory; the numbers beside the bars are times and their ratio to the "
            "library's. The limit moves the same bytes and does nothing else.")
    shapes = {row.shape: [] for row in rows}
    for row in rows:
        shapes[row.shape].append(row)
    sections = [section(*shape) for shape in shapes.items()]
    return page("How fast Brisal draws", text, f'<div class="numbers">{head}</div>{"".join(sections)}')


def plot(series):
    """Both axes are logarithmic; the dashed line is what the largest job's rate alone would cost."""
    points = [(size, ns) for size, ns, _ in series["steps"]]
    rate = points[-1][1] / points[-1][0]
    low_x, high_x = math.log10(points[0][0]), math.log10(points[-1][0])
    low_y = math.log10(min(points[0][0] * rate, points[0][1]))
    high_y = math.log10(max(ns for _, ns in points))

    def place(size, ns):
        return (44 + 290 * (math.log10(size) - low_x) / (high_x - low_x),
                160 - 145 * (math.log10(ns) - low_y) / (high_y - low_y))

    def line(kind, ends):
        path = " ".join("%.1f,%.1f" % place(*end) for end in ends)
        return f'<polyline class="{kind}" points="{path}"/>'

    marks = ""
    for power in range(math.ceil(low_y), math.floor(high_y) + 1):
        y = place(points[0][0], 10**power)[1]
        marks += (f'<line class="grid" x1="44" x2="334" y1="{y:.1f}" y2="{y:.1f}"/>'
                  f'<text x="40" y="{y + 4:.1f}" text-anchor="end">{time_text(10**power)}</text>')
    dots = "".join('<circle cx="%.1f" cy="%.1f" r="3"/>' % place(*point) for point in points)
    unit, units = html.escape(series["unit"]), html.escape(series["units"])
    return (f'<figure><figcaption>{html.escape(series["name"])}<br><small>{time_text(points[0][1])} for '
            f'{points[0][0]:.0f} {units}, {time_text(rate)} a {unit} at {points[-1][0]:.0f}</small>'
            f'</figcaption><svg viewBox="0 0 340 180" role="img" aria-label="{html.escape(series["name"])}">'
            f'{marks}{line("linear", [(s, s * rate) for s, _ in (points[0], points[-1])])}'
            f'{line("", points)}{dots}<text x="44" y="176">{points[0][0]:.0f}</text>'
            f'<text x="334" y="176" text-anchor="end">{points[-1][0]:.0f} {units}</text></svg></figure>')


def growth_page(data):
    text = (f"{html.escape(data['processor'])}, GCC {data['compiler']}. Each job is measured while its "
            "size doubles. Both axes are logarithmic; the dashed line is the cost at the largest job's "
            "rate alone, and what lies above it on the left is the fixed part of a call.")
    return page("How the cost grows", text,
                f'<div class="plots">{"".join(map(plot, data["series"]))}</div>')


def lead_text(rows, time_of):
    leads = [row.peers[0]["ns"] / time_of(row)["ns"] for row in rows if row.peers]
    return f"{mean(leads):.2f}" if leads else ""


def worst_text(rows):
    shared = [row for row in rows if row.peers]
    if not shared:
        return ""
    worst = min(shared, key=lambda row: row.lead)
    return f"{worst.lead:.2f} {worst.peers[0]['name']}"


def table(data):
    """A line for each shape and size: means over the formats and draw modes."""
    groups = {}
    for row in map(Row, data["rows"]):
        groups.setdefault(re.match(r".* \d+x\d+", row.name)[0], []).append(row)
    lines = [f"{data['processor']}, GCC {data['compiler']}.", "",
             "| shape | rows | × limit | lead | lead at worst | lead of the plain column |",
             "|---|---:|---:|---:|---|---:|"]
    for name, rows in groups.items():
        limits = [row.to_limit for row in rows if row.limit]
        lines.append(f"| {name} | {len(rows)} | {f'{mean(limits):.2f}' if limits else ''} | "
                     f"{lead_text(rows, lambda row: row.wide)} | {worst_text(rows)} | "
                     f"{lead_text(rows, lambda row: row.plain)} |")
    return "\n".join(lines)


def main():
    source, option, target = sys.argv[1:]
    data = json.loads(Path(source).read_text())
    target = Path(target)
    if option == "--html":
        target.write_text(rows_page(data) if "rows" in data else growth_page(data))
        return
    begin, end = "<!-- table -->", "<!-- end of table -->"
    text = re.sub(f"{begin}.*{end}", lambda _: f"{begin}\n{table(data)}\n{end}", target.read_text(),
                  flags=re.S)
    target.write_text(text)


if __name__ == "__main__":
    main()
