#!/usr/bin/env python3
"""Measures how many realistic faults the test suite catches.

Makes one small fault at a time in a scratch copy of the project (a
comparison flipped, a boundary moved by one, a condition negated, a table
value changed, a statement removed, a return value replaced), builds it, runs
the suite with a time limit, and prints the faults that no test caught and
the share that was caught.

The mutation points are a fixed list (scripts/mutation-points.txt), drawn
once with a fixed seed from every folder of src/, so that two runs compare.
Code written after that list was drawn has a list of its own
(scripts/mutation-points-added.txt), drawn the same way over the lines added
since a revision; it runs after the first and is counted apart.
Each point names its file, its operator and the exact text of its line, so it
is found again when lines move; a point whose line is gone is reported.

    scripts/mutants.py                 # every point of the list
    scripts/mutants.py --sample 20     # the first 20 points (a quick look)
    scripts/mutants.py --points 3,17   # points 3 and 17 of the list
    scripts/mutants.py --draw 150      # draw a new list of 150 points
    scripts/mutants.py --draw 30 --since REV  # the list of the lines added since REV
    scripts/mutants.py --revision REV  # the suite and code of an earlier revision

Only the tests that run a point's line are run for it: a first build with
coverage records which test runs which line. A point on a line that no test
runs survives without a test run; a point on a line that runs no code (a
table's row, a declaration) runs the tests that run its file, or all of them.
Tests labelled random (fuzzing, kills at random moments) or packaging are left
out, so that a verdict is the same from run to run.
"""
import argparse
import collections
import filecmp
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
POINTS = ROOT / "scripts" / "mutation-points.txt"
ADDED_POINTS = ROOT / "scripts" / "mutation-points-added.txt"
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


def added_lines(tree, since):
    """(file, line number) of every line of src/ added or changed since the revision."""
    diff = subprocess.run(["git", "diff", "-U0", since, "--", "src"], cwd=tree, check=True,
                          capture_output=True, text=True).stdout
    added, rel = set(), None
    for row in diff.splitlines():
        if row.startswith("+++ "):
            rel = row[6:] if row.startswith("+++ b/") else None
        elif row.startswith("@@") and rel:
            start, _, count = re.search(r"\+(\d+)(,(\d+))?", row).groups()
            first = int(start)
            added.update((rel, n) for n in range(first, first + (int(count) if count is not None else 1)))
    return added


def candidates(tree, only=None):
    """Every place where an operator applies, in a fixed order; within `only` (file, line number) if given."""
    found = []
    for path in source_files(tree):
        rel = path.relative_to(tree).as_posix()
        seen = collections.Counter()
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            seen[line] += 1
            if SKIP_LINE.match(line) or not line.strip() or (only is not None and (rel, number) not in only):
                continue
            code = line.split("//")[0]
            for name, (pattern, _) in OPERATORS.items():
                for nth, _ in enumerate(re.finditer(pattern, code)):
                    found.append((rel, name, seen[line] - 1, nth, line))
    return found


# Faults in the tables' values, as against faults in the logic that walks them.
DATA_OPERATORS = {"plus-one", "text-changed"}


def draw(tree, count, only=None):
    """`count` points spread over every folder of src/ by its lines of code, at
    least four a folder, half in the logic and half in the data where both exist."""
    rng = random.Random(SEED)
    by_folder = collections.defaultdict(lambda: ([], []))
    for point in candidates(tree, only):
        by_folder[folder_of(point[0])][point[1] in DATA_OPERATORS].append(point)
    size = collections.Counter()
    for path in source_files(tree):
        rel = path.relative_to(tree).as_posix()
        size[folder_of(rel)] += sum(1 for n, l in enumerate(path.open(encoding="utf-8"), 1)
                                    if l.strip() and (only is None or (rel, n) in only))
    total = sum(size[name] for name in by_folder)
    chosen = []
    for name in sorted(by_folder):
        logic, data = by_folder[name]
        share = max(4, round(count * size[name] / total))
        from_logic = min(len(logic), max(share - len(data), (share + 1) // 2))
        chosen += rng.sample(logic, from_logic) + rng.sample(data, min(len(data), share - from_logic))
    rng.shuffle(chosen)
    return chosen[:count]


def write_points(points, path, since=None):
    with path.open("w", encoding="utf-8") as out:
        scope = f" over the lines added since {since}" if since else ""
        out.write(f"# Mutation points drawn with seed {SEED}{scope}: file, operator, occurrence of the line, "
                  "match on the line, the line.\n")
        for rel, name, occurrence, nth, line in points:
            out.write(f"{rel}\t{name}\t{occurrence}\t{nth}\t{line}\n")


def read_points(path):
    points = []
    if not path.exists():
        return points
    for row in path.read_text(encoding="utf-8").splitlines():
        if row.startswith("#"):
            continue
        rel, name, occurrence, nth, line = row.split("\t", 4)
        points.append((rel, name, int(occurrence), int(nth), line))
    return points



def mutate(text, occurrence, nth, line, name):
    """The file's text with the point's line mutated and its line number, or None when the line is gone."""
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
    return "\n".join(lines), index + 1


def locate(tree, rel, occurrence, nth, line, name):
    """The file that holds the point's line: its own, or one of the same name that a move took it to."""
    named = pathlib.PurePosixPath(rel).name
    for path in [tree / rel] + [p for p in source_files(tree) if p.name == named and p != tree / rel]:
        if path.exists():
            text = path.read_text(encoding="utf-8")
            result = mutate(text, occurrence, nth, line, name)
            if result:
                return path, text, *result
    return None


def run(command, cwd, limit, env=None):
    try:
        return subprocess.run(command, cwd=cwd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=limit, env=env).returncode
    except subprocess.TimeoutExpired:
        return -1


EXIT_SHIM = r"""
#define _GNU_SOURCE
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <unistd.h>
void _exit(int status) {
    char exe[4096];
    ssize_t n = readlink("/proc/self/exe", exe, sizeof exe - 1);
    exe[n > 0 ? n : 0] = '\0';
    const char* name = strrchr(exe, '/');
    if (name && (strcmp(name, "/Brimo2010") == 0 || strcmp(name, "/brimo-settings") == 0)) exit(status);
    syscall(SYS_exit_group, status);
    for (;;) {}
}
"""

LEFT_OUT = {"random", "packaging"}
STAGES = [lambda labels: not labels & {"e2e", "wine"}, lambda labels: "wine" in labels,
          lambda labels: "e2e" in labels]


class Suite:
    """A built copy of a tree, its tests, and which test runs which line."""

    def __init__(self, scratch, revision):
        self.tree, self.build = scratch / "tree", scratch / "build"
        fresh = scratch / "fresh"
        if fresh.exists():
            shutil.rmtree(fresh)
        if revision:
            fresh.mkdir(parents=True)
            archive = subprocess.run(["git", "archive", revision], cwd=ROOT, check=True, capture_output=True)
            subprocess.run(["tar", "-x", "-C", fresh], input=archive.stdout, check=True)
        else:
            top = lambda folder, names: [n for n in names if folder == str(ROOT) and
                                         (n == ".git" or n == "demo" or n.startswith("build"))]
            shutil.copytree(ROOT, fresh, ignore=top, symlinks=True)
        self.refresh(fresh)
        self.configure(self.build, "-O1")
        self.tests = self.list_tests(self.build)
        if self.failing(self.build, set(self.tests), 900):
            sys.exit("the suite fails without any fault: mend it first")
        self.coverage = self.record_coverage(scratch / "coverage")

    def refresh(self, fresh):
        """Makes the tree the same as `fresh`, rewriting only the files that differ, so that the
        builds of an earlier run of the same tree stay good and only what changed is built again."""
        if self.tree.exists():
            for path in sorted(self.tree.rglob("*"), reverse=True):
                twin = fresh / path.relative_to(self.tree)
                if path.is_symlink() or path.is_file():
                    if not (twin.is_file() and not twin.is_symlink() and not path.is_symlink()
                            and filecmp.cmp(path, twin, shallow=False)):
                        path.unlink()
                elif not twin.is_dir():
                    shutil.rmtree(path)
        for twin in fresh.rglob("*"):
            path = self.tree / twin.relative_to(fresh)
            if twin.is_symlink():
                if not path.is_symlink():
                    path.parent.mkdir(parents=True, exist_ok=True)
                    path.symlink_to(os.readlink(twin))
            elif twin.is_dir():
                path.mkdir(parents=True, exist_ok=True)
            elif not path.exists():
                path.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(twin, path)
        shutil.rmtree(fresh)

    def configure(self, build, flags, link=""):
        link += " -fuse-ld=lld" if shutil.which("ld.lld") else ""
        subprocess.run(["cmake", "-S", self.tree, "-B", build, "-DCMAKE_BUILD_TYPE=Mutants",
                        f"-DCMAKE_CXX_FLAGS_MUTANTS={flags}", f"-DCMAKE_EXE_LINKER_FLAGS={link}",
                        "-DBRIMO_BUILD_BENCHMARKS=OFF"],
                       check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", build, "-j2"], check=True, stdout=subprocess.DEVNULL)

    @staticmethod
    def list_tests(build):
        """Name: (number, labels) of every test that gives the same verdict on every run."""
        listing = json.loads(subprocess.run(["ctest", "--show-only=json-v1"], cwd=build, check=True,
                                            capture_output=True, text=True).stdout)
        tests = {}
        for number, test in enumerate(listing["tests"], 1):
            labels = next((set(p["value"]) for p in test.get("properties", []) if p["name"] == "LABELS"), set())
            if not labels & LEFT_OUT:
                tests[test["name"]] = (number, labels)
        return tests

    def record_coverage(self, build):
        """(file, line) -> names of the tests that run it; a file -> names of the tests that run any of it."""
        self.configure(build, "-O0 --coverage", "--coverage")
        # The program ends a dialog by _exit, which skips the writing of its coverage: while
        # coverage is recorded, a preloaded _exit of the program's two binaries calls exit.
        shim = build / "exit-writes-coverage.so"
        subprocess.run(["gcc", "-shared", "-fPIC", "-x", "c", "-", "-o", shim], input=EXIT_SHIM, text=True, check=True)
        env = dict(os.environ, LD_PRELOAD=str(shim))
        by_line, by_file = collections.defaultdict(set), collections.defaultdict(set)
        self.code_lines = collections.defaultdict(set)
        for name, (number, _) in self.list_tests(build).items():
            for data in build.rglob("*.gcda"):
                data.unlink()
            run(["ctest", "-I", f"0,0,0,{number}"], build, 900, env)
            data = [str(p) for p in build.rglob("*.gcda")]
            if not data:
                continue
            report = subprocess.run(["gcov", "--json-format", "--stdout", *data], cwd=build,
                                    capture_output=True, text=True).stdout
            for document in report.splitlines():
                for source in json.loads(document)["files"]:
                    rel = os.path.relpath(pathlib.Path(build, source["file"]).resolve(), self.tree.resolve())
                    if not rel.startswith("src/"):
                        continue
                    for row in source["lines"]:
                        self.code_lines[rel].add(row["line_number"])
                        if row["count"]:
                            by_line[rel, row["line_number"]].add(name)
                            by_file[rel].add(name)
        return by_line, by_file

    def tests_for(self, rel, number):
        """The tests that can see a fault on this line: None when the line is code that no test runs."""
        by_line, by_file = self.coverage
        if number in self.code_lines[rel]:
            return by_line.get((rel, number)) or None
        return by_file.get(rel) or set(self.tests)

    def failing(self, build, names, limit):
        """The chosen tests that fail: every fast one that fails, else the first failing Wine
        comparison or run of the real binary. Empty when all pass."""
        for stage in STAGES:
            numbers = [str(number) for name, (number, labels) in self.tests.items() if name in names and stage(labels)]
            if not numbers:
                continue
            stop = [] if stage is STAGES[0] else ["--stop-on-failure"]
            log = build / "Testing" / "Temporary" / "LastTestsFailed.log"
            log.unlink(missing_ok=True)
            if run(["ctest", "-j2", *stop, "--timeout", "120", "-I", "0,0,0," + ",".join(numbers)], build, limit):
                failed = log.read_text().splitlines() if log.exists() else []
                return sorted(row.partition(":")[2] or row for row in failed if row) or ["(time limit)"]
        return []

    def try_point(self, rel, name, occurrence, nth, line, limit):
        """Makes the fault, builds, runs the tests that run its line, puts the file back: the verdict,
        with the tests that caught it."""
        found = locate(self.tree, rel, occurrence, nth, line, name)
        if found is None:
            return "gone"
        path, original, mutated, number = found
        path.write_text(mutated, encoding="utf-8")
        try:
            if run(["cmake", "--build", self.build, "-j2"], self.tree, limit) != 0:
                return "does not build"
            names = self.tests_for(path.relative_to(self.tree).as_posix(), number)
            failed = self.failing(self.build, names, limit) if names else []
            return ("caught", failed) if failed else "SURVIVED"
        finally:
            path.write_text(original, encoding="utf-8")


def summary(title, result):
    print(f"\n== {title}: faults that no test caught")
    for label in result["SURVIVED"]:
        print(f"  {label}")
    for label in result["gone"]:
        print(f"  (line gone) {label}")
    tried = len(result["caught"]) + len(result["SURVIVED"])
    share = 100.0 * len(result["caught"]) / tried if tried else 0.0
    print(f"{title}: {len(result['caught'])} of {tried} faults caught ({share:.1f}%); "
          f"{len(result['does not build'])} did not build; {len(result['gone'])} gone")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--draw", type=int, metavar="N", help="draw a new list of N points and stop")
    parser.add_argument("--since", metavar="REV", help="with --draw: the list of the lines added since REV")
    parser.add_argument("--sample", type=int, metavar="N", help="run only the first N points of the list")
    parser.add_argument("--points", metavar="N,M,...", help="run only these points of the lists (from 1)")
    parser.add_argument("--scratch", default="/tmp/brimo-mutants", help="where the copies are built")
    parser.add_argument("--limit", type=int, default=300, help="seconds for one build or one test stage")
    parser.add_argument("--revision", metavar="REV", help="the suite and code of REV instead of the working tree")
    args = parser.parse_args()

    if args.draw:
        path = ADDED_POINTS if args.since else POINTS
        write_points(draw(ROOT, args.draw, added_lines(ROOT, args.since) if args.since else None), path, args.since)
        print(f"{args.draw} points written to {path.relative_to(ROOT)}")
        return 0

    chosen = {int(n) for n in args.points.split(",")} if args.points else None
    lists = [("the fixed list", read_points(POINTS)[: args.sample])]
    if not args.sample:
        lists.append(("the added lines' list", read_points(ADDED_POINTS)))
    started = time.time()
    suite = Suite(pathlib.Path(args.scratch) / (args.revision or "working-tree"), args.revision)
    print(f"built, with coverage of {len(suite.tests)} tests, in {time.time() - started:.0f} s", flush=True)
    catchers = collections.defaultdict(list)
    results, number = [], 0
    for title, points in lists:
        result = collections.defaultdict(list)
        for rel, name, occurrence, nth, line in points:
            number += 1
            if chosen and number not in chosen:
                continue
            label = f"{rel}: {name}: {line.strip()}"
            verdict = suite.try_point(rel, name, occurrence, nth, line, args.limit)
            if isinstance(verdict, tuple):
                verdict, failed = verdict
                for test in failed:
                    catchers[test].append(len(failed) == 1)
                label += f"  <- {', '.join(failed)}"
            result[verdict].append(label)
            print(f"[{number} {time.time() - started:5.0f}s] {verdict}: {label}", flush=True)
        results.append((title, result))

    print("\n== tests that caught faults: how many, and how many no other fast test caught")
    for test in sorted(suite.tests, key=lambda t: (-sum(catchers[t]), -len(catchers[t]), t)):
        print(f"  {len(catchers[test]):3} {sum(catchers[test]):3}  {test}")
    for title, result in results:
        if result:
            summary(title, result)
    print(f"{time.time() - started:.0f} s")
    return 0


if __name__ == "__main__":
    sys.exit(main())
