"""Reads what a build with --coverage has counted and prints the lines and branches that were run, layer by layer.

A branch is one way out of a decision of the compiled code. The ways that an exception takes out of a call, and the way
on from such a call, are no decisions and aren't counted; nor are branches of a line on which no decision is written,
such as a closing brace: the compiler made them, most to destroy at an exception what was built so far, and no test can
choose among them. A line or branch of a header or template counts once, as run when any translation unit or
instantiation ran it.
"""
import json
import pathlib
import re
import subprocess
import sys
from collections import defaultdict

LAYERS = ["core", "method", "chance", "cases", "engine", "configs", "followup", "maintenance", "tools", "provision",
          "desk"]
LEAST_LINES, LEAST_BRANCHES = 95.0, 85.0
WRITTEN = re.compile(r"\b(if|for|while|switch|case|default)\b|&&|\|\||\?")
GOES_ON = ("&&", "||", "?", ":", "(")  # ends a line whose decision goes on in the next one


def deciding(text):
    """Numbers of the lines of a source on which a decision is written, or goes on."""
    found, before = set(), ""
    for number, line in enumerate(text.splitlines(), 1):
        code = line.split("//")[0].rstrip()
        if WRITTEN.search(code) or before.endswith(GOES_ON):
            found.add(number)
        before = code
    return found


def decisions(branches):
    """Counts of the branches without those of exceptions: of a call that may throw, both ways."""
    kept = []
    for branch in branches:
        if branch["throw"]:
            if kept and kept[-1]["fallthrough"]:
                kept.pop()
        else:
            kept.append(branch)
    return [branch["count"] for branch in kept]


def merged(before, counts):
    if len(before) != len(counts):
        return max(before, counts, key=len)
    return [a + b for a, b in zip(before, counts)]


def read(build, root):
    lines, branches, written = defaultdict(int), defaultdict(list), {}
    for notes in sorted(build.rglob("*.gcno")):
        if notes.relative_to(build).parts[0] not in LAYERS:
            continue
        run = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", notes.resolve()],
                             capture_output=True, text=True, check=True, cwd=build)
        for part in run.stdout.splitlines():
            report = json.loads(part)
            for file in report["files"]:
                path = (pathlib.Path(report["current_working_directory"]) / file["file"]).resolve()
                if root not in path.parents or path.relative_to(root).parts[0] not in LAYERS:
                    continue
                if path not in written:
                    written[path] = deciding(path.read_text(encoding="utf-8"))
                for line in file["lines"]:
                    key = (path.relative_to(root), line["line_number"])
                    lines[key] += line["count"]
                    if line["line_number"] in written[path]:
                        branches[key] = merged(branches[key], decisions(line["branches"]))
    return lines, branches


def share(run, whole):
    return 100.0 * run / whole if whole else 100.0


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    root = pathlib.Path(__file__).resolve().parent.parent
    lines, branches = read(build, root)
    rows = defaultdict(lambda: [0, 0, 0, 0])
    for key, count in lines.items():
        for name in (key[0].parts[0], "all"):
            row = rows[name]
            row[0] += count > 0
            row[1] += 1
            row[2] += sum(taken > 0 for taken in branches[key])
            row[3] += len(branches[key])
    print(f"{'layer':<14}{'lines':>18}{'branches':>22}")
    for name in LAYERS + ["all"]:
        run, whole, taken, ways = rows[name]
        print(f"{name:<14}{run:>6}/{whole:<6}{share(run, whole):5.1f} %{taken:>8}/{ways:<6}{share(taken, ways):5.1f} %")
    with open(build / "not_run.txt", "w", encoding="utf-8") as left:
        for (path, line), count in sorted(lines.items()):
            missing = sum(taken == 0 for taken in branches[path, line])
            if count == 0 or missing:
                left.write(f"{path}:{line}: {'not run' if count == 0 else f'{missing} branches not taken'}\n")
    print(f"What wasn't run stands in {build / 'not_run.txt'}")
    run, whole, taken, ways = rows["all"]
    return 0 if share(run, whole) >= LEAST_LINES and share(taken, ways) >= LEAST_BRANCHES else 1


if __name__ == "__main__":
    sys.exit(main())
