#!/usr/bin/env python3
"""Plants small faults in the sources one at a time and records which tests catch each.

Each line of the faults file is `file|old|new` (a literal "|" in the text is written "\\|"): the
one place where `old` occurs in `file` is replaced by `new`, the release build in BUILD is rebuilt,
every test but the install test is run, the failing tests are recorded, and the file is restored.
A fault that no test catches is one the suite misses; a test that is the only one to catch a fault
must not be cut. Run it on a tree of its own (a git worktree), never on one being edited.

    scripts/plant-faults.py TREE BUILD RESULTS.json [FAULTS]   # FAULTS: scripts/planted-faults.txt
    scripts/plant-faults.py TREE --check [FAULTS]              # only checks that each fault applies
"""
import json
import os
import re
import subprocess
import sys


def read_faults(path):
    faults = []
    for line in open(path, encoding='utf-8'):
        if not line.strip() or line.startswith('#'):
            continue
        parts = [p.replace('\\|', '|') for p in re.split(r'(?<!\\)\|', line.rstrip('\n'))]
        if len(parts) != 3:
            sys.exit(f'not file|old|new: {line.strip()[:80]}')
        faults.append(parts)
    return faults


def main():
    args = [a for a in sys.argv[1:] if a != '--check']
    check = '--check' in sys.argv
    here = os.path.dirname(os.path.abspath(__file__))
    tree = args[0]
    faults_file = args[1 if check else 3] if len(args) > (1 if check else 3) else os.path.join(here, 'planted-faults.txt')
    faults = read_faults(faults_file)
    results = {}
    for n, (name, old, new) in enumerate(faults):
        path = os.path.join(tree, name)
        source = open(path, encoding='utf-8').read()
        if source.count(old) != 1:
            print(f'fault {n}: {name}: the text occurs {source.count(old)} times: {old.strip()[:60]}')
            continue
        if check:
            continue
        build, out = args[1], args[2]
        open(path, 'w', encoding='utf-8').write(source.replace(old, new))
        try:
            made = subprocess.run(['cmake', '--build', build, '-j2'], capture_output=True, text=True)
            if made.returncode != 0:
                results[n] = ['(does not build)']
            else:
                run = subprocess.run(['ctest', '--test-dir', build, '-j2', '--timeout', '120', '-E', '^install$'],
                                     capture_output=True, text=True)
                results[n] = re.findall(r'\d+ - (\S+) \((?!Skipped)', run.stdout)
        finally:
            open(path, 'w', encoding='utf-8').write(source)
        print(n, name, len(results[n]), ' '.join(results[n][:4]), flush=True)
        json.dump({'faults': faults, 'caughtBy': results}, open(out, 'w'), indent=1)
    if not check:
        subprocess.run(['cmake', '--build', args[1], '-j2'], capture_output=True)
        missed = [n for n, tests in results.items() if not tests]
        print(f'{len(results) - len(missed)} of {len(results)} faults caught; missed: {missed}')


main()
