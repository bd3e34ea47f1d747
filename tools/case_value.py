#!/usr/bin/env python3
"""What each test case adds: the lines and branches only it covers and the mutants only it kills.

    case_value.py coverage --build build/coverage --out cases.json [--only test_base ...]
        runs every case of every test program of a coverage build (./test.sh --coverage) alone
        and records the lines and branches of src/ and world/ it covers
    case_value.py kills --mutants docs/mutants.json --build build/mutate --out kills.json
        for each mutant: puts it in, builds every core test program, runs them all and records
        every case that fails; then puts the line back
    case_value.py choose --coverage cases.json --kills kills.json [more kills files]
                         [--files docs/coverage-before.txt]
        a cheap set of cases that still covers every line and branch and kills every mutant the
        whole suite does; prints the other cases with the two kept cases that hold most of what
        each one covers. With --files, only the lines and branches of the files a coverage report
        names count

A case that `choose` leaves out adds nothing either measure sees. That is a reason to read it, not
to delete it: an exact value, a limit or a file format checked nowhere else is worth its lines
even when the code it runs is run by others.
"""
import argparse
import glob
import json
import os
import re
import subprocess
import sys
import time
import xml.etree.ElementTree as ET
from collections import defaultdict

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import mutate  # noqa: E402
from coverage_report import read_report  # noqa: E402

ROOT = mutate.ROOT
CASE = re.compile(r"^(TEST|TEST_F|TEST_P)\((\w+),\s*(\w+)\)")


def list_cases(program):
    out = subprocess.run([program, "--gtest_list_tests"], capture_output=True, text=True,
                         env=mutate.OFFSCREEN).stdout
    suite = None
    for line in out.splitlines():
        if not line.startswith(" "):
            suite = line.split()[0]
        else:
            yield suite + line.split()[0]


def run_case(program, case, timeout):
    return mutate.run_quiet([program, "--gtest_filter=" + case], timeout,
                            cwd=os.path.dirname(program))


def unit(case):
    """The TEST a gtest case name comes from: instantiation and parameter index dropped."""
    return re.sub(r"/\d+$", "", re.sub(r"^\w+/", "", case))


# ---- coverage

def covered(build):
    """Lines and branches of src/ and world/ that the counters in the build folder hold."""
    lines, branches = set(), set()
    counters = glob.glob(os.path.join(build, "**", "*.gcda"), recursive=True)
    for i in range(0, len(counters), 60):
        out = subprocess.run(["gcov", "--json-format", "--branch-probabilities", "--stdout"] +
                             counters[i:i + 60], capture_output=True, text=True, cwd=build).stdout
        for document in out.splitlines():
            if not document.startswith("{"):
                continue
            report = json.loads(document)
            for f in report["files"]:
                path = os.path.normpath(os.path.join(report["current_working_directory"],
                                                     f["file"]))
                rel = os.path.relpath(path, ROOT)
                if not rel.startswith(("src/", "world/")):
                    continue
                for line in f["lines"]:
                    at = f"{rel}:{line['line_number']}"
                    if line["count"] > 0:
                        lines.add(at)
                    for n, branch in enumerate(line["branches"]):
                        if branch["count"] > 0 and not branch["throw"]:
                            branches.add(f"{at}:{n}")
    return sorted(lines), sorted(branches)


def coverage(args):
    build = os.path.abspath(args.build)
    programs = sorted(p for p in glob.glob(os.path.join(build, "tests", "test_*"))
                      if os.path.isfile(p) and os.access(p, os.X_OK)
                      and (not args.only or os.path.basename(p) in args.only))
    results = {}
    for program in programs:
        for case in list_cases(program):
            # A client or world started by the last case writes its counters when it ends.
            for name in ("src", "world"):
                subprocess.run(["pkill", "-f", os.path.join(build, name, "thornmere")])
            time.sleep(0.3)
            for counters in glob.glob(os.path.join(build, "**", "*.gcda"), recursive=True):
                os.remove(counters)
            status = run_case(program, case, 600)
            lines, branches = covered(build)
            results[case] = {"status": status, "lines": lines, "branches": branches}
            print(f"{case} {status} {len(lines)} lines {len(branches)} branches", flush=True)
    with open(args.out, "w") as f:
        json.dump(results, f)


# ---- kills

def failing_cases(program, report):
    status = mutate.run_quiet([program, "--gtest_output=xml:" + report], 60)
    if status == 0:
        return []
    if os.path.exists(report):
        # Failure messages may quote the bytes under test, which XML does not allow.
        with open(report, encoding="utf-8", errors="replace") as f:
            text = re.sub(r"[\x00-\x08\x0b\x0c\x0e-\x1f]|&#x?[0-9A-Fa-f]+;", "?", f.read())
        os.remove(report)
        failed = [c.get("classname") + "." + c.get("name")
                  for c in ET.fromstring(text).iter("testcase") if c.find("failure") is not None]
        if failed:
            return failed
    # A crash or a hang leaves no report: each case alone tells which.
    return [case for case in list_cases(program) if run_case(program, case, 20) != 0]


def kills(args):
    with open(args.mutants) as f:
        mutants = json.load(f)
    build = os.path.abspath(args.build)
    targets = ["test_" + f for f in mutate.prepare(build)]
    results = {}
    for mutant in mutants:
        with mutate.applied(mutant) as present:
            if not present:
                found = "stale"
            elif mutate.run_quiet(["cmake", "--build", build, "--target"] + targets, 900) != 0:
                found = "invalid"
            else:
                found = [case for t in targets
                         for case in failing_cases(os.path.join(build, "tests", t),
                                                   os.path.join(build, t + ".xml"))]
        results[mutant["id"]] = found
        print(mutant["id"], found if isinstance(found, str) else f"{len(found)} cases fail",
              file=sys.stderr, flush=True)
    with open(args.out, "w") as f:
        json.dump(results, f, indent=0)


# ---- choose

def case_lengths():
    """Each TEST's length in lines, from its line to its closing brace."""
    lengths = {}
    for path in glob.glob(os.path.join(ROOT, "tests", "**", "*.cpp"), recursive=True):
        with open(path) as f:
            lines = f.read().split("\n")
        for i, line in enumerate(lines):
            found = CASE.match(line)
            if found:
                end = next((j for j in range(i, len(lines)) if lines[j] == "}"), i)
                lengths[found.group(2) + "." + found.group(3)] = end - i + 1
    return lengths


def choose(args):
    files = set(read_report(args.files)) if args.files else None

    def counted(place):
        return files is None or place.split(":")[0] in files

    elements = defaultdict(set)
    with open(args.coverage) as f:
        for case, result in json.load(f).items():
            elements[unit(case)] |= {"line " + x for x in result["lines"] if counted(x)}
            elements[unit(case)] |= {"branch " + x for x in result["branches"] if counted(x)}
    for name in args.kills:
        with open(name) as f:
            for mutant, failed in json.load(f).items():
                for case in failed if isinstance(failed, list) else []:
                    elements[unit(case)].add("mutant " + mutant)
    lengths = case_lengths()
    cost = {case: lengths.get(case, 1) for case in elements}
    everything = set().union(*elements.values())
    # Greedy by what a case adds per line, then each kept case that the others make redundant
    # goes, the longest first.
    keep, held = [], set()
    while held != everything:
        best = max((c for c in elements if c not in keep),
                   key=lambda c: len(elements[c] - held) / cost[c])
        keep.append(best)
        held |= elements[best]
    for case in sorted(keep, key=lambda c: -cost[c]):
        others = set().union(*(elements[c] for c in keep if c != case))
        if elements[case] <= others:
            keep.remove(case)
    left = sorted(set(elements) - set(keep))
    holders = defaultdict(int)
    for case in elements:
        for e in elements[case]:
            holders[e] += 1
    alone = [c for c in elements if any(holders[e] == 1 for e in elements[c])]
    print(f"{len(elements)} cases, {sum(cost.values())} lines; {len(alone)} of them "
          f"({sum(cost[c] for c in alone)} lines) hold something no other case does; "
          f"a set of {len(keep)} ({sum(cost[c] for c in keep)} lines) holds all; "
          f"the other {len(left)} have {sum(cost[c] for c in left)} lines")
    for case in left:
        own = elements[case]
        nearest = sorted(keep, key=lambda c: -len(own & elements[c]))[:2]
        print(f"{cost[case]:>4} {case} <- " + ", ".join(
            f"{c} {100 * len(own & elements[c]) // max(1, len(own))}%" for c in nearest))


def main():
    parser = argparse.ArgumentParser()
    sub = parser.add_subparsers(dest="command", required=True)
    c = sub.add_parser("coverage")
    c.add_argument("--build", required=True)
    c.add_argument("--out", required=True)
    c.add_argument("--only", nargs="+", help="these test programs alone")
    k = sub.add_parser("kills")
    k.add_argument("--mutants", required=True)
    k.add_argument("--build", required=True)
    k.add_argument("--out", required=True)
    s = sub.add_parser("choose")
    s.add_argument("--coverage", required=True)
    s.add_argument("--kills", nargs="+", default=[])
    s.add_argument("--files", help="count only the files this coverage report names")
    args = parser.parse_args()
    {"coverage": coverage, "kills": kills, "choose": choose}[args.command](args)


if __name__ == "__main__":
    main()
