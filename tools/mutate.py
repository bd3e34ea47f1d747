#!/usr/bin/env python3
"""Mutation testing of core: small faults put into src/ one at a time, each run against the
tests, to see which the tests catch.

    mutate.py pick --count 200 --seed 1 --out docs/mutants.json
        chooses mutants spread over every core folder of src/ (its .cpp files, not qt/)
    mutate.py run --mutants docs/mutants.json --build build/mutate --out REPORT [--only 3,17]
                  [--widgets]
        for each mutant: puts it in, builds the folder's core test program, runs it, and when
        the mutant survives that, every other core test program (and with --widgets, then every
        widget test program, on the offscreen platform); then puts the line back

A mutant is killed when a test program fails or runs past its time, survives when all pass,
and is invalid when it does not build. The score is killed / (killed + survived). The build
folder is configured here (Release, warnings not errors, no benchmarks).
"""
import argparse
import contextlib
import json
import os
import random
import re
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SRC = os.path.join(ROOT, "src")

COMPARISONS = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ",
               " != ": " == "}
NUMBER = re.compile(r"(?<![\w.])(\d+)(?![\w.'])")
STATEMENT = re.compile(r"^(\s+)(?!return\b|const\b|auto\b|case\b|break\b|continue\b|default\b)"
                       r"[A-Za-z_][\w:.\->\[\]]*\s*(\(|=|\+=|-=|\|=|&=|\+\+|--).*;\s*$")
IF = re.compile(r"\bif \(")


def core_folders():
    return sorted(d for d in os.listdir(SRC)
                  if os.path.isdir(os.path.join(SRC, d)) and d != "qt"
                  and any(f.endswith(".cpp") for f in os.listdir(os.path.join(SRC, d))))


def is_code(line):
    text = line.strip()
    return text and not text.startswith(("//", "#", "*", "/*", "static_assert"))


def matching_paren(text, start):
    depth = 0
    for i in range(start, len(text)):
        if text[i] == "(":
            depth += 1
        elif text[i] == ")":
            depth -= 1
            if depth == 0:
                return i
    return -1


def sites(path):
    """Every mutation of one file: (line number, kind, original, mutated)."""
    found = []
    with open(path) as f:
        lines = f.read().split("\n")
    for number, line in enumerate(lines, 1):
        if not is_code(line):
            continue
        code = line.split("//")[0]
        for old, new in COMPARISONS.items():
            at = code.find(old)
            if at >= 0:
                found.append((number, "flip " + old.strip(), line, line[:at] + new + line[at + len(old):]))
        for match in NUMBER.finditer(code):
            value = int(match.group(1))
            for changed in (value + 1, value - 1):
                if changed >= 0:
                    mutated = line[:match.start(1)] + str(changed) + line[match.end(1):]
                    found.append((number, f"constant {value}->{changed}", line, mutated))
        if STATEMENT.match(line):
            found.append((number, "drop statement", line, STATEMENT.match(line).group(1) + ";"))
        match = IF.search(code)
        if match:
            open_at = match.end() - 1
            close_at = matching_paren(line, open_at)
            if close_at > 0:
                condition = line[open_at + 1:close_at]
                found.append((number, "swap branch", line,
                              line[:open_at + 1] + "!(" + condition + ")" + line[close_at:]))
    return found


def pick(args):
    rng = random.Random(args.seed)
    # Per folder, the sites of each kind of mutation, so each kind gets its share.
    by_folder = {}
    for folder in core_folders():
        kinds = {}
        for name in sorted(os.listdir(os.path.join(SRC, folder))):
            if name.endswith(".cpp"):
                rel = os.path.join("src", folder, name)
                for site in sites(os.path.join(ROOT, rel)):
                    kinds.setdefault(site[1].split()[0], []).append((rel,) + site)
        for candidates in kinds.values():
            rng.shuffle(candidates)
        by_folder[folder] = [kinds[k] for k in sorted(kinds)]
    mutants = []
    turn = 0
    # Round robin over the folders, and within a folder over the kinds.
    while len(mutants) < args.count and any(any(k) for k in by_folder.values()):
        for folder in sorted(by_folder):
            kinds = [k for k in by_folder[folder] if k]
            if kinds and len(mutants) < args.count:
                rel, number, kind, original, mutated = kinds[turn % len(kinds)].pop()
                mutants.append({"id": len(mutants) + 1, "folder": folder, "file": rel,
                                "line": number, "kind": kind, "original": original,
                                "mutated": mutated})
        turn += 1
    with open(args.out, "w") as f:
        json.dump(mutants, f, indent=1)
    print(f"{len(mutants)} mutants over {len(by_folder)} folders in {args.out}")


# Widget tests run without a display.
OFFSCREEN = dict(os.environ, QT_QPA_PLATFORM="offscreen")


def run_quiet(command, timeout, cwd=None):
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=timeout, env=OFFSCREEN, cwd=cwd).returncode
    except subprocess.TimeoutExpired:
        return "timeout"


def widget_programs():
    return ["test_" + f + "_qt" for f in sorted(os.listdir(os.path.join(ROOT, "tests")))
            if os.path.isdir(os.path.join(ROOT, "tests", f, "qt"))]


def first_failing(build, programs):
    if run_quiet(["cmake", "--build", build, "--target"] + programs, 900) != 0:
        return None
    for program in programs:
        if run_quiet([os.path.join(build, "tests", program)], 120) != 0:
            return program
    return None


def judge(mutant, build, folders, widgets):
    own = "test_" + mutant["folder"]
    if run_quiet(["cmake", "--build", build, "--target", own], 600) != 0:
        return "invalid", ""
    others = ["test_" + f for f in folders if f != mutant["folder"]]
    by = (first_failing(build, [own]) or first_failing(build, others)
          or (widgets and first_failing(build, widgets)))
    return ("killed", by) if by else ("survived", "")


def locate(lines, mutant):
    """The mutant's line: where it was picked, or, when code above it has moved it, the nearest
    line with the same text. None when that text is gone (the mutant is stale)."""
    at = mutant["line"] - 1
    if at < len(lines) and lines[at] == mutant["original"]:
        return at
    same = [i for i, line in enumerate(lines) if line == mutant["original"]]
    return min(same, key=lambda i: abs(i - at)) if same else None


def prepare(build):
    """Configures the build folder and builds every core test program; returns the folders that
    have one."""
    subprocess.run(["cmake", "-S", ROOT, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                    "-DSTEWARD_WERROR=OFF", "-DSTEWARD_BENCH=OFF"], check=True,
                   stdout=subprocess.DEVNULL)
    folders = [f for f in core_folders() if os.path.exists(os.path.join(ROOT, "tests", f))]
    subprocess.run(["cmake", "--build", build, "--target"] + ["test_" + f for f in folders],
                   check=True, stdout=subprocess.DEVNULL)
    return folders


@contextlib.contextmanager
def applied(mutant):
    """The mutant in its file for the time of the block, which is given False when the mutant's
    line is gone (stale); the file is put back whatever the block does."""
    path = os.path.join(ROOT, mutant["file"])
    with open(path) as f:
        original = f.read()
    lines = original.split("\n")
    at = locate(lines, mutant)
    if at is None:
        yield False
        return
    lines[at] = mutant["mutated"]
    try:
        with open(path, "w") as f:
            f.write("\n".join(lines))
        yield True
    finally:
        with open(path, "w") as f:
            f.write(original)


def run(args):
    with open(args.mutants) as f:
        mutants = json.load(f)
    if args.only:
        wanted = {int(n) for n in args.only.split(",")}
        mutants = [m for m in mutants if m["id"] in wanted]
    build = os.path.abspath(args.build)
    folders = prepare(build)
    widgets = widget_programs() if args.widgets else []
    results = []
    started = time.time()
    for mutant in mutants:
        with applied(mutant) as present:
            verdict, by = judge(mutant, build, folders, widgets) if present else ("stale", "")
        results.append((mutant, verdict, by))
        print(f"{mutant['id']:>4} {verdict:<8} {mutant['file']}:{mutant['line']} {mutant['kind']}",
              file=sys.stderr, flush=True)
    write_report(results, args.out, time.time() - started)


def write_report(results, out, seconds):
    counts = {}
    per_folder = {}
    for mutant, verdict, _ in results:
        counts[verdict] = counts.get(verdict, 0) + 1
        folder = per_folder.setdefault(mutant["folder"], {})
        folder[verdict] = folder.get(verdict, 0) + 1

    def score(c):
        judged = c.get("killed", 0) + c.get("survived", 0)
        return 100.0 * c.get("killed", 0) / judged if judged else 0.0

    with open(out, "w") as f:
        f.write(f"mutants {len(results)}: killed {counts.get('killed', 0)}, survived "
                f"{counts.get('survived', 0)}, invalid {counts.get('invalid', 0)}, stale "
                f"{counts.get('stale', 0)}; score {score(counts):.1f}% ({seconds / 60:.0f} min)\n\n")
        for folder in sorted(per_folder):
            c = per_folder[folder]
            f.write(f"{folder:<12} killed {c.get('killed', 0):>3} survived "
                    f"{c.get('survived', 0):>3} invalid {c.get('invalid', 0):>3}  "
                    f"score {score(c):5.1f}%\n")
        f.write("\n")
        for mutant, verdict, by in results:
            f.write(f"{mutant['id']:>4} {verdict:<8} {mutant['file']}:{mutant['line']} "
                    f"{mutant['kind']}{'  by ' + by if by else ''}\n")
            if verdict == "survived":
                f.write(f"       - {mutant['original'].strip()}\n       + {mutant['mutated'].strip()}\n")
    print(open(out).readline().strip())


def main():
    parser = argparse.ArgumentParser()
    sub = parser.add_subparsers(dest="command", required=True)
    p = sub.add_parser("pick")
    p.add_argument("--count", type=int, default=200)
    p.add_argument("--seed", type=int, default=1)
    p.add_argument("--out", required=True)
    r = sub.add_parser("run")
    r.add_argument("--mutants", required=True)
    r.add_argument("--build", required=True)
    r.add_argument("--out", required=True)
    r.add_argument("--only")
    r.add_argument("--widgets", action="store_true")
    args = parser.parse_args()
    pick(args) if args.command == "pick" else run(args)


if __name__ == "__main__":
    main()
