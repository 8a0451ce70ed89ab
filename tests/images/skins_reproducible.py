#!/usr/bin/env python3
"""Runs the skin generator into a scratch folder and compares every output byte for byte
with the committed resources; also fails on committed pictures the generator no longer makes.

    skins_reproducible.py <generator folder> <resources folder>
"""

import filecmp
import os
import sys
import tempfile

PICTURE_FOLDERS = ("bitmaps", "png")


def committed_pictures(resources):
    found = set()
    for folder in PICTURE_FOLDERS:
        path = os.path.join(resources, folder)
        if os.path.isdir(path):
            found.update(os.path.join(folder, name) for name in os.listdir(path))
    return found


def main():
    generator_dir, resources = sys.argv[1], sys.argv[2]
    sys.dont_write_bytecode = True  # keep the source tree free of caches
    sys.path.insert(0, generator_dir)
    import generate

    problems = []
    with tempfile.TemporaryDirectory() as scratch:
        fresh = {os.path.relpath(p, scratch) for p in generate.write_all(scratch)}
        committed = committed_pictures(resources)
        for rel in sorted(fresh - committed):
            problems.append("not committed: " + rel)
        for rel in sorted(committed - fresh):
            problems.append("no longer generated: " + rel)
        for rel in sorted(fresh & committed):
            if not filecmp.cmp(os.path.join(scratch, rel), os.path.join(resources, rel), shallow=False):
                problems.append("differs from a fresh run: " + rel)
        if not fresh:
            problems.append("the generator wrote nothing")
    for line in problems:
        print(line)
    print("%d pictures compared, %d problems" % (len(fresh), len(problems)))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
