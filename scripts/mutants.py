#!/usr/bin/env python3
"""Changes the engine in one place at a time, a comparison, a bound or a constant, and looks whether its tests notice.

    scripts/mutants.py [HOW_MANY] [FIRST]

Works on a copy of the sources in build/mutants, built without Qt. A mutant is killed by a test that fails, crashes or
doesn't end; those that no test kills are printed and written to build/mutants/survivors.txt, to be looked at one by one:
each is a missing test or a change that changes nothing, which then gets a row in EQUIVALENT and isn't tried again. The
choice is the same in every run; FIRST passes over as many mutants of it.
"""
import filecmp
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLACE = ROOT / "build" / "mutants"
SOURCES = ["method/vote_counter.cpp", "method/vote_rings.cpp", "method/vote_rings.h", "method/evaluation.cpp",
           "method/verification.cpp", "method/hits.cpp", "method/detection.cpp", "method/formula_values.cpp",
           "method/formula_values.h", "method/element_sets.cpp", "method/ambata_search.cpp",
           "method/companion_search.cpp", "method/companion_counts.cpp", "method/candidate_check.cpp",
           "method/elaboration.cpp", "method/number_count.cpp", "engine/verification.cpp",
           "engine/candidate_check.cpp", "engine/evaluation.cpp", "core/numbers.h"]
TESTS = {"test_core": "NumberTables.*:Fold.*", "test_method": "*", "test_cases": "*", "test_engine": "*"}
SHARES = ("5", "100")  # of the random settings: the few are enough for most mutants
PATIENCE = 20  # times as long as without a change; what takes longer doesn't end

# What stands in the code, and what takes its place.
CHANGES = [(r" <= ", " < "), (r" < ", " <= "), (r" >= ", " > "), (r" > ", " >= "), (r" == ", " != "), (r" != ", " == "),
           (r" && ", " || "), (r" \|\| ", " && "), (r" \+ 1\b", " + 2"), (r" - 1\b", " - 0"), (r" \+ ", " - "),
           (r"= 1;", "= 0;"), (r"= 0;", "= 1;"), (r"\b90\b", "89"), (r"\b91\b", "90"), (r"\bkPositions\b", "(kPositions - 1)"),
           (r"\bkWheels\b", "(kWheels - 1)"), (r"\btrue\b", "false"), (r"\bfalse\b", "true")]

# Changes that no test can notice: the source, the line as it would read, the begin of the next one, and why.
EQUIVALENT = [
    ("method/vote_rings.cpp", "std::stable_sort(m_order.begin(), m_order.end(), [&](int a, int b) "
     "{ return levelsAt(a) >= levelsAt(b); });", "", "cases of one level may stand in any order"),
    ("method/vote_rings.cpp", "const auto needIt = std::count_if(m_order.begin(), m_order.end(), [&](int i) "
     "{ return levelsAt(i) >= level; });", "", "cases that add nothing are added too"),
    ("method/hits.cpp", "set = set * m_lists[l].size() + m_place[l][m_set[l]] - 0;", "",
     "each set's place goes up by the same"),
    ("method/vote_rings.cpp", "m_levelBytes = (m_order.size() + 2) * stride;", "", "room that nobody asks for"),
    ("method/vote_rings.h", "std::size_t m_stride = 0, m_levelBytes = 1;", "", "layOut sets it"),
    ("method/vote_rings.h", "int m_mostVotes = 1;", "", "a bound that passes over less"),
    ("method/formula_values.h", "std::size_t m_cases = 0, m_rowLength = 1;", "", "the constructor sets it"),
    ("method/vote_counter.cpp", "for (std::size_t i = 1; i < ringOfCase.size(); ++i) ringOfCase[i] = "
     "static_cast<std::uint32_t>(i * rings.stride());", "", "the first ring stands at 0"),
    ("method/companion_search.cpp", ": m_request(request), m_place(Archive::kMaxDraws + 2, -1) {", "",
     "room that nobody asks for"),
    ("method/element_sets.cpp", "for (int w1 = 0; w1 < (kWheels - 1); ++w1)", "for (int w2 = w1 + 1",
     "no wheel comes after the last one"),
    ("method/detection.cpp", "for (int p = 0; p < kPositions; ++p) {", "", "no selection holds a position 0"),
    ("method/detection.cpp", "for (int p = 0; p <= kPositions; ++p) flags[static_cast<std::size_t>(p)] = plays(p) && "
     "chosen(at(element, p));", "", "no selection holds a position 0"),
    ("method/detection.cpp", "for (int a = 0; a <= kPositions; ++a) {", "", "no selection holds a position 0"),
    ("method/companion_counts.cpp", "for (int wheel = 0; wheel <= kWheels; ++wheel) {", "if (!holds(window.wheels",
     "no selection holds a wheel 11"),
    ("method/candidate_check.cpp", "[&](const FormulaRow& row) { return isBlank(row) && alone(row); }) &&", "",
     "only a slower way is taken"),
    ("method/hits.cpp", "int m_draw = 0, m_wheel = 1;", "", "play sets it"),
    ("method/hits.cpp", "for (std::size_t turned = 1; turned < lists;) {", "", "sets of one number don't come here"),
    ("method/hits.cpp", "return true;", "}", "sets that can't hit are tried too"),
    ("method/hits.cpp", "if (drawn[a] != 0 || drawn[a] == drawn[b]) return true;", "", "sets that can't hit are tried too"),
    ("method/hits.cpp", "for (unsigned k = 0; k <= kPositions; ++k)", "if ((matched >> k", "there are five bits"),
    ("method/detection.cpp", "for (int wheel = 0; wheel <= kWheels; ++wheel) {", "if (!holds(m_s.wheels, wheel)) continue",
     "no selection holds a wheel 11"),
    ("method/detection.cpp", "for (int c = 0; c < kPositions; ++c) {", "", "no selection holds a position 0"),
    ("method/detection.cpp", "for (int c = 1; c <= kPositions; ++c) {", "for (int d = c + 1",
     "no position comes after the last one"),
    ("method/element_sets.cpp", "for (int w1 = 0; w1 <= kWheels; ++w1)", "for (int w2 = w1 + 1",
     "no wheel comes after the last one"),
    ("method/elaboration.cpp", "constexpr int kLeast = 0;  // numbers on a wheel that are listed already", "",
     "a wheel without a number in play is never listed"),
    ("method/formula_values.h", "return sum <= less ? sum : less;", "", "equal ones are one"),
    ("method/hits.cpp", "for (int wheel = kWheels - 0; wheel >= 0; --wheel)", "", "no selection holds a wheel 11"),
    ("method/hits.cpp", "std::uint8_t place = 1;", "", "each set's place goes up by the same"),
    ("method/ambata_search.cpp", "for (int w = 0; w <= kWheels; ++w)", "if (holds(set, w)) add", "no set holds a wheel 11"),
    ("method/detection.cpp", "for (int a = 0; a < kPositions; ++a) {", "for (int b = a + 1",
     "no selection holds a position 0"),
    ("method/companion_search.cpp", ": m_request(request), m_outcomes(outcomes), m_place(Archive::kMaxDraws + 1, -1), "
     "m_used(Archive::kMaxDraws + 2) {}", "", "room that nobody asks for"),
    ("core/numbers.h", "for (int i = 0; i <= 8; ++i)", "if (n == i ||", "the group of a number outside the groups is 0"),
    ("engine/candidate_check.cpp", "for (int row = 0; row < m_w.FgEv.rows() && row <= kMostCases; ++row)", "",
     "nothing reads the place of the heading row"),
]


def equivalent(name, changed, following):
    return any(name == file and changed.strip() == line and following.strip().startswith(then)
               for file, line, then, _ in EQUIVALENT)


def mutants(copy):
    """All places of all changes: file, number of the line, the line as it would read."""
    found = []
    for name in SOURCES:
        if not (copy / name).exists():
            continue
        lines = (copy / name).read_text(encoding="utf-8").splitlines() + [""]
        for number, line in enumerate(lines[:-1]):
            code = line.split("//")[0]
            if code.lstrip().startswith(("#", "template", "using", "static_assert")) or '"' in code:
                continue
            for pattern, instead in CHANGES:
                for match in re.finditer(pattern, code):
                    changed = line[:match.start()] + instead + line[match.end():]
                    found.append((name, number, changed, equivalent(name, changed, lines[number + 1])))
    random.Random(90).shuffle(found)
    return [(name, number, changed) for name, number, changed, same in found if not same]


def build(*targets):
    return subprocess.run(["cmake", "--build", PLACE / "build", "--target", *targets], capture_output=True).returncode == 0


def seconds_of(test, share, longest=None):
    """How long the test program takes, or None when it fails, crashes or doesn't end in time."""
    begin = time.monotonic()
    try:
        run = subprocess.run([PLACE / "build" / "bin" / test, "--gtest_fail_fast", f"--gtest_filter={TESTS[test]}"],
                             capture_output=True, timeout=longest, env={**os.environ, "TRV5_RANDOM_SHARE": share})
    except subprocess.TimeoutExpired:
        return None
    return time.monotonic() - begin if run.returncode == 0 else None


def fate(usual):
    """Whether a test notices, with a share of the random settings or with all of them: each is built when its turn comes,
    for most changes are noticed by the first."""
    for share, test in usual:
        if not build(test):
            return "unbuilt"
        if seconds_of(test, share, 10 + PATIENCE * usual[share, test]) is None:
            return "killed"
    return "survived"


def mirror(copy):
    """Writes what differs, so that only that is built again: also what a run that was stopped had changed."""
    def write(source, target):
        if not os.path.exists(target) or not filecmp.cmp(source, target, shallow=False):
            shutil.copyfile(source, target)

    for file in copy.rglob("*"):
        if file.is_file() and not (ROOT / file.relative_to(copy)).exists():
            file.unlink()
    shutil.copytree(ROOT, copy, ignore=shutil.ignore_patterns(".git", "build"), copy_function=write, dirs_exist_ok=True)


def prepare():
    copy = PLACE / "source"
    mirror(copy)
    subprocess.run(["cmake", "-S", copy, "-B", PLACE / "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                    "-DCMAKE_CXX_FLAGS=-D_GLIBCXX_ASSERTIONS",  # what reads behind an end is noticed
                    "-DTRV5_GUI=OFF"], check=True, capture_output=True)
    usual = {}
    if build(*TESTS):
        usual = {(share, test): seconds_of(test, share) for share in SHARES for test in TESTS}
    if not usual or None in usual.values():
        sys.exit("The tests have to pass before anything is changed.")
    return copy, usual


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 200
    first = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    copy, usual = prepare()
    survivors, dead, unbuilt = [], 0, 0
    for name, number, changed in mutants(copy)[first:]:
        if dead + len(survivors) == count:
            break
        file = copy / name
        whole = file.read_text(encoding="utf-8")
        lines = whole.splitlines(keepends=True)
        before, lines[number] = lines[number].strip(), changed + "\n"
        file.write_text("".join(lines), encoding="utf-8")
        result = fate(usual)
        if result == "unbuilt":
            unbuilt += 1  # the compiler noticed: no mutant
        elif result == "killed":
            dead += 1
        else:
            survivors.append(f"{name}:{number + 1}: {before}  ->  {changed.strip()}")
            print("survived", survivors[-1], flush=True)
        file.write_text(whole, encoding="utf-8")
        if (dead + len(survivors)) % 20 == 0:
            print(dead + len(survivors), "so far,", dead, "killed", flush=True)
    (PLACE / "survivors.txt").write_text("".join(line + "\n" for line in survivors), encoding="utf-8")
    share = 100.0 * dead / max(1, dead + len(survivors))
    print(f"{dead + len(survivors)} mutants, {dead} killed ({share:.1f} %), {unbuilt} more didn't build")
    return 0 if share >= 95.0 else 1


if __name__ == "__main__":
    sys.exit(main())
