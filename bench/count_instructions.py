#!/usr/bin/python3
"""count_instructions.py BUILD OUT: instructions of single operations, exactly, and the most that each may take.

Each case runs twice under callgrind, a different number of times; what one time more costs is the difference.
Writes OUT, a JSON object by case. Ends with 1 when a limit is broken.
"""

import collections
import json
import os
import re
import subprocess
import sys
import tempfile

# Case, most instructions, and the shared object whose own instructions count (none: all of them).
CASES = [
    ("voidRequest", 1150, "libradioapis.so"),
    ("messageBuilt3", 900, None),
    ("messageRead3", 350, None),
    ("messageRead10", 800, None),
    ("atAnswer1", 950, None),
    ("atAnswer5", 1450, None),
    ("atAnswer24", 3900, None),
    ("measurementReport", 60000, None),
]
FEW, MANY = 100, 300


def counted(build, case, times):
    """Instructions by the object that they are in, without those of what it calls."""
    with tempfile.NamedTemporaryFile() as out:
        environment = dict(os.environ, RADIO_LOG="off", LD_LIBRARY_PATH=f"{build}/platform/host/kst")
        subprocess.run(
            ["valgrind", "--tool=callgrind", "--compress-strings=no", f"--callgrind-out-file={out.name}",
             f"{build}/bench/instructions", case, str(times)],
            env=environment, check=True, capture_output=True)
        totals = collections.Counter()
        place, is_call = "", False
        for line in out.read().decode().splitlines():
            if line.startswith("ob="):
                place = os.path.basename(line[3:].strip())
            elif line.startswith("calls="):
                is_call = True  # the next line holds what the callee took
            elif re.match(r"[+\-*\d]", line):
                numbers = line.split()
                if not is_call and len(numbers) > 1:
                    totals[place] += int(numbers[1])
                is_call = False
        return totals


def main():
    build, out = sys.argv[1:]
    broken = False
    results = {}
    print(f"{'operation':20} {'instructions':>12} {'at most':>9}")
    for case, limit, only in CASES:
        few, many = counted(build, case, FEW), counted(build, case, MANY)
        cost = sum(count - few[place] for place, count in many.items()
                   if only is None or place.startswith(only)) / (MANY - FEW)
        results[case] = {"instructions": cost, "limit": limit}
        broken |= cost > limit
        print(f"{case:20} {cost:12.0f} {limit:9}{'  too many' if cost > limit else ''}")
    with open(out, "w", encoding="utf-8") as file:
        json.dump(results, file, indent=2)
    return 1 if broken else 0


sys.exit(main())
