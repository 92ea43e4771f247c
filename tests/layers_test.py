#!/usr/bin/env python3
"""Fails when a file of src/ includes a header of a layer above its own.

The layers, from the bottom up: platform, model, forms, dialogs/<name>, and
the two programs' shells on top. A file may include its own folder and the
layers below it; a dialog sees no other dialog; nothing includes a shell.
"""
import pathlib
import re
import sys

RANKS = {"platform": 0, "model": 1, "forms": 2, "dialogs": 3, "app": 4, "settings": 4}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.M)


def folder(path):
    """The layer folder of a path below src/: 'model', 'dialogs/slope', ..."""
    parts = pathlib.PurePosixPath(path).parts
    return "/".join(parts[:2]) if parts[0] == "dialogs" else parts[0]


def allowed(own, target):
    if own == target:
        return True
    own_rank, target_rank = RANKS.get(own.split("/")[0]), RANKS.get(target.split("/")[0])
    return own_rank is not None and target_rank is not None and target_rank < own_rank


def main(src):
    src = pathlib.Path(src)
    faults = []
    for file in sorted(src.rglob("*")):
        if file.suffix not in (".h", ".cpp") or len(file.relative_to(src).parts) < 2:
            continue
        own = folder(file.relative_to(src))
        for header in INCLUDE.findall(file.read_text(encoding="utf-8")):
            if header.endswith(".moc"):
                continue
            if not allowed(own, folder(header)):
                faults.append(f"{file.relative_to(src)}: includes {header}, a layer above or beside {own}")
    for fault in faults:
        print(fault)
    print(f"{len(faults)} layering faults in {src}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "src"))
