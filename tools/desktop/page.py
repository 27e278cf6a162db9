"""A page with the table of scripts/desktops and a picture of each desktop."""

import datetime
import os
import platform
import subprocess

PACKAGES = {"kwin_x11": "kwin-x11", "kwin_wayland": "kwin-wayland", "gnome": "gnome-shell", "i3": "i3-wm"}
COLUMNS_OF_PICTURES = 3


def debian():
    return platform.freedesktop_os_release()["VERSION_ID"]


def version(row):
    """Without epoch and Debian's revision."""
    if row == "none":
        return ""
    found = subprocess.run(["dpkg-query", "-W", "-f", "${source:Upstream-Version}", PACKAGES.get(row, row)],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return found.stdout.split(":")[-1].split("+")[0]


def table(header, rows):
    return ["| " + " | ".join(header) + " |", "|---" * len(header) + "|",
            *("| " + " | ".join(row) + " |" for row in rows)]


def write(folder, columns, rows, pictures):
    """`rows` has a dictionary of cells and remarks for each desktop."""
    folder.mkdir(parents=True, exist_ok=True)
    prefix = f"debian-{debian()}"
    lines = [f"# Desktops on Debian {debian()}", "",
             f"Written by `scripts/desktops --page` on {datetime.date.today()}, on {os.cpu_count()} processors, with the "
             "default configurations of Debian's packages.", ""]
    lines += table(["", *(column.replace("_", " ") for column in columns)],
                   [[f"{name} {version(name)}".strip(), *(row[column][0] for column in columns)]
                    for name, row in rows.items()])
    remarks = [f"- {name}, {column.replace('_', ' ')}: {remark.splitlines()[-1]}" for name, row in rows.items()
               for column, (_, remark) in row.items() if remark]
    lines += ["", *remarks] if remarks else []
    shown = []
    for name in rows:
        source, picture = pictures / f"{name}-above-bar.png", f"{prefix}-{name}.png"
        if source.exists():
            subprocess.run(["convert", source, "-resize", "640x", "-colors", "96", "-strip", folder / picture],
                           check=True)
            shown.append(f"![{name}]({picture})<br>{name}")
    rows_of_pictures = [shown[i:i + COLUMNS_OF_PICTURES] for i in range(0, len(shown), COLUMNS_OF_PICTURES)]
    lines += ["", *table([""] * COLUMNS_OF_PICTURES,
                         [row + [""] * (COLUMNS_OF_PICTURES - len(row)) for row in rows_of_pictures])]
    (folder / f"{prefix}.md").write_text("\n".join(lines) + "\n")
