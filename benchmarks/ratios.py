"""The plot of what has been compared: our seconds by theirs, a bar each, with its goal."""

from html import escape

WIDTH, ROW, TOP = 860, 26, 58
LEFT, RIGHT = 290, 60
CANVAS, TEXT, MUTED, LINE = "#1c1c1e", "#f2f2f4", "#98989d", "#48484a"
REACHED, MISSED, GOAL = "#0a84ff", "#ff9f0a", "#f2f2f4"


def svg(figures):
    """`figures` as harness.keep() has stored them, by name; the greatest gain stands first."""
    rows = sorted(figures.items(), key=lambda row: row[1]["ours"] / row[1]["theirs"])
    ratios = [row["ours"] / row["theirs"] for _, row in rows]
    longest = max(1.2, *ratios, *(row["goal"] for _, row in rows))
    height = TOP + ROW * len(rows) + 34

    def x(ratio):
        return LEFT + ratio / longest * (WIDTH - LEFT - RIGHT)

    def text(at, y, words, color=TEXT, anchor="start"):
        return (
            f'<text x="{at:.1f}" y="{y:.1f}" fill="{color}" text-anchor="{anchor}">{escape(words)}</text>'
        )

    def line(at, top, bottom, color, width=1):
        return (
            f'<line x1="{at:.1f}" x2="{at:.1f}" y1="{top:.1f}" y2="{bottom:.1f}" '
            f'stroke="{color}" stroke-width="{width}"/>'
        )

    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" '
        f'viewBox="0 0 {WIDTH} {height}" font-family="Inter, system-ui, sans-serif" font-size="13">',
        "<title>Seconds of Klarvik by those of other programs</title>",
        f'<rect width="{WIDTH}" height="{height}" rx="8" fill="{CANVAS}"/>',
        text(18, 28, "Seconds of Klarvik by those of the other program: shorter is quicker"),
    ]
    for number in range(1, int(longest / 0.25) + 1):
        at = x(number / 4)
        parts.append(line(at, TOP - 6, height - 28, MUTED if number == 4 else LINE))
        parts.append(text(at, TOP - 12, f"{number / 4:g}", MUTED, "middle"))
    for number, ((name, row), ratio) in enumerate(zip(rows, ratios)):
        top = TOP + number * ROW
        color = REACHED if ratio <= row["goal"] else MISSED
        # Beside the bar, or behind the mark where that is in the way.
        in_the_way = 0 <= x(row["goal"]) - x(ratio) < 46
        figure = x(row["goal"]) if in_the_way else x(ratio)
        parts += [
            text(18, top + 17, name),
            text(LEFT - 12, top + 17, row["against"], MUTED, "end"),
            f'<rect x="{LEFT}" y="{top + 5}" width="{x(ratio) - LEFT:.1f}" height="{ROW - 10}" '
            f'rx="3" fill="{color}"/>',
            line(x(row["goal"]), top + 2, top + ROW - 2, GOAL, 2),
            text(figure + 8, top + 17, f"{ratio:.2f}"),
        ]
    days = sorted({row["day"] for _, row in rows})
    processors = " or ".join(sorted({str(row["processors"]) for _, row in rows}))
    measured = f"Measured {' to '.join(sorted({days[0], days[-1]}))} with {processors} processors."
    parts += [text(18, height - 12, f"White marks: the goals. {measured}", MUTED), "</svg>"]
    return "\n".join(parts) + "\n"


def draw(figures, path):
    if figures:
        path.write_text(svg(figures), encoding="utf-8")
