#!/usr/bin/env python3
"""Checks that includes point downwards only, and that nothing below the renderer knows Qt."""

import pathlib
import re
import sys

RANK = {
    "platform": 0,
    "framework": 1,
    "editors": 2,
    "status": 3,
    "records": 3,
    "graphs": 3,
    "liveviews": 4,
    "actions": 4,
    "testhistory": 4,
    "qt": 5,
    "probe": 6,
    "shell": 6,
}
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
THIRD_PARTY = re.compile(r"^(Q[A-Z]|Qt|libxml/|nlohmann/|gtest/|gmock/)")
# Which folder may use which library besides the standard one.
ALLOWED = {
    "qt": re.compile(r"^Q"),
    "shell": re.compile(r"^Q"),
    "probe": re.compile(r"^nlohmann/"),
    "platform/libxml2": re.compile(r"^libxml/"),
}


def layer(path: pathlib.Path) -> str:
    parts = path.parts
    return parts[1] if parts[0] == "src" else parts[0]


def main() -> int:
    faults = []
    files = [p for root in ("src", "probe", "shell") for p in pathlib.Path(root).rglob("*")]
    for path in files:
        if path.suffix not in (".h", ".cpp"):
            continue
        own = layer(path)
        if own not in RANK:
            faults.append(f"{path}: unknown folder {own}")
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            name = found.group(2)
            target = name.split("/")[0]
            if found.group(1) == '"' and "/" in name and target in RANK:
                if RANK[target] > RANK[own] or (RANK[target] == RANK[own] and target != own):
                    faults.append(f"{path}:{number}: {own} must not include {name}")
            elif THIRD_PARTY.match(name):
                home = "platform/libxml2" if "libxml2" in path.parts else own
                allowed = ALLOWED.get(home)
                if allowed is None or not allowed.match(name):
                    faults.append(f"{path}:{number}: {home} must not include {name}")
    print("\n".join(faults) if faults else f"{len(files)} paths, all includes point downwards.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
