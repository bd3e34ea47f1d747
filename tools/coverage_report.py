#!/usr/bin/env python3
"""Per-file line and branch coverage of src/ from a gcovr JSON summary.

    coverage_report.py SUMMARY.json                    prints the report
    coverage_report.py SUMMARY.json --against OLD.txt  also prints every file that covers
                                                       fewer lines or branches than OLD says,
                                                       and exits 1 when there is one
"""
import argparse
import json
import sys


def read_summary(path):
    with open(path) as f:
        summary = json.load(f)
    files = {}
    for entry in summary["files"]:
        files[entry["filename"]] = (entry["line_covered"], entry["line_total"],
                                    entry["branch_covered"], entry["branch_total"])
    return files


def percent(covered, total):
    return 100.0 * covered / total if total else 100.0


def report(files):
    lines = [f"{'file':<48} {'lines':>13} {'%':>6} {'branches':>13} {'%':>6}"]
    totals = [0, 0, 0, 0]
    for name in sorted(files):
        lc, lt, bc, bt = files[name]
        totals = [a + b for a, b in zip(totals, files[name])]
        lines.append(f"{name:<48} {lc:>6}/{lt:<6} {percent(lc, lt):>6.1f} "
                     f"{bc:>6}/{bt:<6} {percent(bc, bt):>6.1f}")
    lc, lt, bc, bt = totals
    lines.append(f"{'TOTAL':<48} {lc:>6}/{lt:<6} {percent(lc, lt):>6.1f} "
                 f"{bc:>6}/{bt:<6} {percent(bc, bt):>6.1f}")
    return "\n".join(lines)


def read_report(path):
    files = {}
    with open(path) as f:
        for line in f.readlines()[1:]:
            parts = line.split()
            if len(parts) != 5 or parts[0] == "TOTAL":
                continue
            lc, lt = (int(n) for n in parts[1].split("/"))
            bc, bt = (int(n) for n in parts[3].split("/"))
            files[parts[0]] = (lc, lt, bc, bt)
    return files


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("summary")
    parser.add_argument("--against")
    args = parser.parse_args()
    files = read_summary(args.summary)
    print(report(files))
    if not args.against:
        return 0
    lost = 0
    for name, (lc, lt, bc, bt) in sorted(read_report(args.against).items()):
        now = files.get(name, (0, 0, 0, 0))
        # A file whose lines were removed may cover fewer; what counts is what it left uncovered.
        if now[1] - now[0] > lt - lc or now[3] - now[2] > bt - bc:
            lost += 1
            print(f"LOST {name}: lines {lc}/{lt} -> {now[0]}/{now[1]}, "
                  f"branches {bc}/{bt} -> {now[2]}/{now[3]}")
    return 1 if lost else 0


if __name__ == "__main__":
    sys.exit(main())
