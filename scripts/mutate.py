"""The work of scripts/mutate."""

import argparse
import pathlib
import random
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TREE = ROOT / "build/mutate/tree"
BUILD = ROOT / "build/mutate/build"
TIME_LIMIT = 120  # seconds: a change may make a loop endless
ANY_BYTE = "latin-1"

# What is changed into what. Sources are formatted, so an operator with a blank on both sides is no template's bracket.
SWAPS = [
    (r"==", "!="), (r"!=", "=="), (r"<=", "<"), (r">=", ">"), (r" < ", " <= "), (r" > ", " >= "),
    (r"&&", "||"), (r"(?<=[\w)] )\|\|", "&&"), (r"!(?=[\w(])", ""),
    (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "), (r" / ", " * "), (r" % ", " * "),
    (r"\+\+", "--"), (r"--", "++"), (r"\+=", "-="), (r"-=", "+="),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
]
NUMBER = re.compile(r"(?<![\w.])\d+(?![\w.])")
CONDITION = re.compile(r"\bif \(")
# A call or an assignment on a line of its own. What only takes memory beforehand may go unnoticed.
STATEMENT = re.compile(r"^ +(?!return|using|const|else|case|throw|static|auto)[\w:.>()\[\]*-]+(\(| [+|-]?= )[^\n]*;$",
                       re.MULTILINE)
UNNOTICED = re.compile(r"\.reserve\(")
# What no change is looked for in: comments, includes and characters; texts have a change of their own.
BLANKED = re.compile(r'//[^\n]*|/\*.*?\*/|^#[^\n]*|(?<!\w)\'(?:\\.|[^\'\\\n])+\'|"(?:\\.|[^"\\\n])*"',
                     re.MULTILINE | re.DOTALL)


def compiled_here(source):
    """The source with blanks where it is another platform's alone, which no test here could notice."""
    lines = []
    conditions = []  # those around the line, and whether it is behind their #else
    for line in source.splitlines(keepends=True):
        if line.startswith("#if"):
            conditions.append((line.strip(), False))
        elif line.startswith("#else"):
            conditions[-1] = (conditions[-1][0], True)
        elif line.startswith("#endif"):
            conditions.pop()
        elsewhere = any(each in conditions for each in [("#ifdef _WIN32", False), ("#ifdef __linux__", True)])
        lines.append(re.sub(r"[^\r\n]", " ", line) if elsewhere else line)
    return "".join(lines)


def changes(source):
    """Each change as (from, to, text): the text that stands for source[from:to]."""
    source = compiled_here(source)
    code = BLANKED.sub(lambda match: " " * len(match[0]) if match[0][0] != '"' else '"' * len(match[0]), source)
    for match in BLANKED.finditer(source):
        if match[0].startswith('"') and len(match[0]) > 2:
            yield match.start() + 1, match.start() + 1, "~"
    for pattern, text in SWAPS:
        for match in re.finditer(pattern, code):
            yield match.start(), match.end(), text
    for match in NUMBER.finditer(code):
        yield match.start(), match.end(), str(int(match[0]) + 1)
    for match in CONDITION.finditer(code):
        yield match.end(), closing(code, match.end()), f"!({source[match.end():closing(code, match.end())]})"
    for match in STATEMENT.finditer(code):
        before = code[:match.start()].rstrip()
        if before.endswith((";", "{", "}", ")", ":", "else")) and not UNNOTICED.search(match[0]):
            yield match.start(), match.end(), "{}"


def closing(code, at):
    depth = 1
    while depth > 0:
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        at += 1
    return at - 1


def copy_sources():
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout
    for name in filter(None, listed.split("\0")):
        if (ROOT / name).is_file():
            put(TREE / name, (ROOT / name).read_bytes())


def put(file, data):
    """Leaves a file of the same bytes alone, so that nothing is built again for it."""
    if not file.is_file() or file.read_bytes() != data:
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(data)


def succeeds(command, limit=None):
    try:
        return subprocess.run(command, cwd=BUILD, capture_output=True, timeout=limit).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def builds():
    return succeeds(["cmake", "--build", str(BUILD), "--target", "core_tests"])


def passes():
    return succeeds([str(BUILD / "tests/core_tests"), "--gtest_brief=1", "--gtest_fail_fast"], TIME_LIMIT)


def changes_of(units, sample):
    """The changes to try, as a list for each unit; of all units' together a sample, the same in every run."""
    chosen = [(unit, *change) for unit in units
              for change in sorted(set(changes((TREE / unit).read_bytes().decode(ANY_BYTE))))]
    if sample and sample < len(chosen):
        chosen = sorted(random.Random(sample).sample(chosen, sample))
    return {unit: [change[1:] for change in chosen if change[0] == unit] for unit in units}


def mutate(unit, chosen):
    """Tries changes of a unit; gives how many were built and how many of those no test noticed."""
    file = TREE / unit
    source = file.read_bytes().decode(ANY_BYTE)
    built = survived = 0
    try:
        for start, end, text in chosen:
            put(file, (source[:start] + text + source[end:]).encode(ANY_BYTE))
            if not builds():
                continue
            built += 1
            if passes():
                survived += 1
                number = source.count("\n", 0, start) + 1
                if source[start:end].startswith(" ") and text == "{}":
                    tell = f"without `{source[start:end].strip()}`"
                else:
                    line = source.rfind("\n", 0, start) + 1
                    changed = source[line:start] + text + source[end:].split("\n", 1)[0]
                    tell = " ".join(changed.split())
                print(f"{unit}:{number}: {tell}", flush=True)
    finally:
        put(file, source.encode(ANY_BYTE))
    if chosen:
        print(f"{unit}: {built - survived} of {built} noticed, {len(chosen) - built} more don't compile", flush=True)
    return built, survived


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutate")
    parser.add_argument("units", nargs="+", help="sources of the core")
    parser.add_argument("--sample", type=int, help="how many changes, picked at random among those of all the units")
    options = parser.parse_args()
    units = [str(pathlib.Path(unit).resolve().relative_to(ROOT)) for unit in options.units]

    copy_sources()
    BUILD.mkdir(parents=True, exist_ok=True)
    subprocess.run(["cmake", "-S", str(TREE), "-B", str(BUILD), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DQUILLFEN_GUI=OFF", "-DQUILLFEN_FATAL_WARNINGS=OFF"], check=True, stdout=subprocess.DEVNULL)
    if not builds() or not passes():
        sys.exit("The tests fail before anything is changed.")
    counts = [mutate(unit, chosen) for unit, chosen in changes_of(units, options.sample).items()]
    built, survived = (sum(column) for column in zip(*counts))
    print(f"{built - survived} of {built} changes noticed ({100 * (built - survived) / max(built, 1):.1f} %)")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        sys.exit(130)
