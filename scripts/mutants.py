#!/usr/bin/env python3
"""Measures how many realistic faults the test suite catches.

Makes one small fault at a time in a scratch copy of the project (a
comparison flipped, a boundary moved by one, a condition negated, a table
value changed, a statement removed, a return value replaced), builds it, runs
the suite with a time limit, and prints the faults that no test caught and
the share that was caught.

The mutation points are a fixed list (scripts/mutation-points.txt), drawn
once with a fixed seed from every folder of src/, so that two runs compare.
Each point names its file, its operator and the exact text of its line, so it
is found again when lines move; a point whose line is gone is reported.

    scripts/mutants.py                 # every point of the list
    scripts/mutants.py --sample 20     # the first 20 points (a quick look)
    scripts/mutants.py --draw 150      # draw a new list of 150 points
    scripts/mutants.py --baseline REV  # each point also against the tree of REV
"""
import argparse
import collections
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
POINTS = ROOT / "scripts" / "mutation-points.txt"
SEED = 2010

# Each operator: a pattern on one line and what the match becomes.
OPERATORS = {
    "flip-eq": (r"==", "!="),
    "flip-ne": (r"!=", "=="),
    "move-lt": (r"(?<![<\-])<(?![<=])(?=\s)", "<="),
    "move-gt": (r"(?<![>\-])(?<=\s)>(?![>=])", ">="),
    "move-le": (r"<=", "<"),
    "move-ge": (r">=", ">"),
    "and-or": (r"&&", "||"),
    "or-and": (r"\|\|", "&&"),
    "negate-if": (r"\bif \((.*)\)(?=\s*(\{|return|continue|break|[a-zA-Z_]))", r"if (!(\1))"),
    "plus-one": (r"(?<![\w.])([0-9]+)(?![\w.])", lambda m: str(int(m.group(1)) + 1)),
    "true-false": (r"\breturn true;", "return false;"),
    "false-true": (r"\breturn false;", "return true;"),
    "text-changed": (r'"([A-Za-z][^"\\]{1,40})"', r'"\1#"'),
    "drop-statement": (r"^(\s+)([a-zA-Z_][\w:<>.\->()]*\s*(\+\+|--|[-+]?=|\().*;)\s*$", r"\1;"),
}

SKIP_LINE = re.compile(r"^\s*(//|#|\*|static_assert|Q_OBJECT|Q_INIT_RESOURCE|namespace|using|template|enum|struct|class|public:|private:|protected:)")


def folder_of(path):
    parts = pathlib.PurePosixPath(path).parts
    return "/".join(parts[:3]) if parts[1] == "dialogs" else "/".join(parts[:2])


def source_files(tree):
    return sorted(p for p in (tree / "src").rglob("*") if p.suffix in (".cpp", ".h"))


def candidates(tree):
    """Every place where an operator applies, in a fixed order."""
    found = []
    for path in source_files(tree):
        rel = path.relative_to(tree).as_posix()
        seen = collections.Counter()
        for line in path.read_text(encoding="utf-8").splitlines():
            seen[line] += 1
            if SKIP_LINE.match(line) or not line.strip():
                continue
            code = line.split("//")[0]
            for name, (pattern, _) in OPERATORS.items():
                for nth, _ in enumerate(re.finditer(pattern, code)):
                    found.append((rel, name, seen[line] - 1, nth, line))
    return found


# Faults in the tables' values, as against faults in the logic that walks them.
DATA_OPERATORS = {"plus-one", "text-changed"}


def draw(tree, count):
    """`count` points spread over every folder of src/ by its lines of code, at
    least four a folder, half in the logic and half in the data where both exist."""
    rng = random.Random(SEED)
    by_folder = collections.defaultdict(lambda: ([], []))
    for point in candidates(tree):
        by_folder[folder_of(point[0])][point[1] in DATA_OPERATORS].append(point)
    size = collections.Counter()
    for path in source_files(tree):
        size[folder_of(path.relative_to(tree).as_posix())] += sum(1 for l in path.open(encoding="utf-8") if l.strip())
    total = sum(size[name] for name in by_folder)
    chosen = []
    for name in sorted(by_folder):
        logic, data = by_folder[name]
        share = max(4, round(count * size[name] / total))
        from_logic = min(len(logic), max(share - len(data), (share + 1) // 2))
        chosen += rng.sample(logic, from_logic) + rng.sample(data, min(len(data), share - from_logic))
    rng.shuffle(chosen)
    return chosen[:count]


def write_points(points):
    with POINTS.open("w", encoding="utf-8") as out:
        out.write(f"# Mutation points drawn with seed {SEED}: file, operator, occurrence of the line, "
                  "match on the line, the line.\n")
        for rel, name, occurrence, nth, line in points:
            out.write(f"{rel}\t{name}\t{occurrence}\t{nth}\t{line}\n")


def read_points():
    points = []
    for row in POINTS.read_text(encoding="utf-8").splitlines():
        if row.startswith("#"):
            continue
        rel, name, occurrence, nth, line = row.split("\t", 4)
        points.append((rel, name, int(occurrence), int(nth), line))
    return points


def mutate(text, occurrence, nth, line, name):
    """The file's text with the point's line mutated, or None when the line is gone."""
    lines = text.split("\n")
    hits = [i for i, l in enumerate(lines) if l == line]
    if occurrence >= len(hits):
        return None
    pattern, replacement = OPERATORS[name]
    index = hits[occurrence]
    code, sep, comment = lines[index].partition("//")
    matches = list(re.finditer(pattern, code))
    if nth >= len(matches):
        return None
    match = matches[nth]
    mutated = code[: match.start()] + (match.expand(replacement) if isinstance(replacement, str)
                                       else replacement(match)) + code[match.end():]
    lines[index] = mutated + sep + comment
    return "\n".join(lines)


def run(command, cwd, limit):
    try:
        return subprocess.run(command, cwd=cwd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=limit).returncode
    except subprocess.TimeoutExpired:
        return -1


def suite_fails(build, limit):
    """Runs the fast tests first, then the Wine comparison and the runs of the real binary."""
    stages = [["-LE", "e2e|wine"], ["-L", "wine"], ["-L", "e2e"]]
    for stage in stages:
        code = run(["ctest", "-j2", "--stop-on-failure", "--timeout", "120", *stage], build, limit)
        if code != 0:
            return True
    return False


def prepare(scratch, revision=None):
    """A built copy of the working tree, or of a revision of the repository."""
    tree, build = scratch / "tree", scratch / "build"
    if tree.exists():
        shutil.rmtree(tree)
    if revision:
        tree.mkdir(parents=True)
        archive = subprocess.run(["git", "archive", revision], cwd=ROOT, check=True, capture_output=True)
        subprocess.run(["tar", "-x", "-C", tree], input=archive.stdout, check=True)
    else:
        shutil.copytree(ROOT, tree, ignore=shutil.ignore_patterns(".git", "build*", "demo"), symlinks=True)
    linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
    subprocess.run(["cmake", "-S", tree, "-B", build, "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1",
                    "-DBRIMO_BUILD_BENCHMARKS=OFF", *linker], check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", build, "-j2"], check=True, stdout=subprocess.DEVNULL)
    if suite_fails(build, 900):
        sys.exit("the suite fails without any fault: mend it first")
    return tree, build


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--draw", type=int, metavar="N", help="draw a new list of N points and stop")
    parser.add_argument("--sample", type=int, metavar="N", help="run only the first N points of the list")
    parser.add_argument("--scratch", default="/tmp/brimo-mutants", help="where the copy is built")
    parser.add_argument("--limit", type=int, default=300, help="seconds for one build or one test stage")
    parser.add_argument("--baseline", metavar="REV",
                        help="run each point in the tree of REV as well (a point whose line is not there is gone)")
    args = parser.parse_args()

    if args.draw:
        write_points(draw(ROOT, args.draw))
        print(f"{args.draw} points written to {POINTS.relative_to(ROOT)}")
        return 0

    points = read_points()[: args.sample]
    suites = {"suite": prepare(pathlib.Path(args.scratch) / "current")}
    if args.baseline:
        suites["baseline"] = prepare(pathlib.Path(args.scratch) / "baseline", args.baseline)
    results = {name: collections.defaultdict(list) for name in suites}
    started = time.time()
    for number, (rel, name, occurrence, nth, line) in enumerate(points, 1):
        label = f"{rel}: {name}: {line.strip()}"
        verdicts = []
        for suite, (tree, build) in suites.items():
            verdict = try_point(tree, build, rel, name, occurrence, nth, line, args.limit)
            results[suite][verdict].append(label)
            verdicts.append(f"{suite} {verdict}")
        print(f"[{number}/{len(points)} {time.time() - started:5.0f}s] {', '.join(verdicts)}: {label}", flush=True)

    for suite, result in results.items():
        print(f"\n== {suite}: faults that no test caught")
        for label in result["SURVIVED"]:
            print(f"  {label}")
        for label in result["gone"]:
            print(f"  (line gone) {label}")
        tried = len(result["caught"]) + len(result["SURVIVED"])
        share = 100.0 * len(result["caught"]) / tried if tried else 0.0
        print(f"{suite}: {len(result['caught'])} of {tried} faults caught ({share:.1f}%); "
              f"{len(result['does not build'])} did not build; {len(result['gone'])} gone")
    print(f"{time.time() - started:.0f} s")
    return 0


def try_point(tree, build, rel, name, occurrence, nth, line, limit):
    """Makes the fault, builds, runs the suite, puts the file back: the verdict."""
    path = tree / rel
    original = path.read_text(encoding="utf-8")
    mutated = mutate(original, occurrence, nth, line, name)
    if mutated is None:
        return "gone"
    path.write_text(mutated, encoding="utf-8")
    try:
        if run(["cmake", "--build", build, "-j2"], tree, limit) != 0:
            return "does not build"
        return "caught" if suite_fails(build, limit) else "SURVIVED"
    finally:
        path.write_text(original, encoding="utf-8")


if __name__ == "__main__":
    sys.exit(main())
