#!/usr/bin/env python3
"""A day's session of real zircons as a batch: makes the scenario, runs it, and compares.

upb_batch.py RUNNER KIT MEASURED WORK. The 68 spots of the folder upb-run become a master list with 91500 as the standard;
the standards are processed, the line through their drift is accepted, then the other spots. What must come out is reckoned
here from the files, with no code of the program.
"""
import math
import shutil
import statistics
import subprocess
import sys
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

import master_file

sys.path.append(str(Path(__file__).parent.parent / "real"))
from upb_session import BLANK, LAMBDA_238, SIGNAL, Spot  # noqa: E402

TRUE = {11: 0.17917, 13: 0.07488}  # 206/238 and 207/206 of 91500, Wiedenbeck et al. 1995
AGES = {"GJ1": 601.6, "STDCZ": 337.13}  # Ma, Horstwood et al. 2016
MASTER = "0-session.msf"
faults = []


def hold(fact, what):
    if not fact:
        faults.append(what)


def scenario(names):
    standards = [name for name in names if "91500" in name]
    lines = ["today 2009-01-07 14:03:22", "start 1"]
    lines += ["click frm1_Settings.mnuDefault(2)"]
    lines += [f'type frm_InputForm.txtCSV{box} "{n}"' for box, n in (("iso", 4), ("dat", 5), ("first", 2))]
    lines += ['answer save "../session.def"', "click frm_InputForm.cmdSave"]
    lines += ['put setSTDabbr "91500"', "click frm1_Settings.cmdCreate", 'choose frm_FileList.Dir1 "."',
              "click frm_FileList.optStringSearch(0)", 'choose frm_FileList.Combo2 "3"', "click frm_FileList.cmdReOrd",
              f"expect SeqCount {len(names)}", f'answer save "{MASTER}"', "click frm_FileList.cmdSave",
              f"expect SeqStdCount {len(standards)}", "expect no message", "click frm_FileList.cmdClose",
              f'answer open "{MASTER}"', "click frm1_Settings.cmdOpenMaster", "expect SeqPhase 1",
              f'expect DataFileName "{names[0]}"']
    lines += [f"mark frm2_UP.pict1 {button} {t}" for button, t in
              zip(("left shift", "right shift", "left", "right"), BLANK + SIGNAL)]
    # The list begins with a glass, which is nobody's standard here.
    lines += ["expect frm2_UP.cmdSaveAnd(1) disabled", "click frm2_UP.cmdOpenNext"]
    for number, name in enumerate(standards, 1):
        lines += [f'expect DataFileName "{name}"', f"expect SeqPos {names.index(name) + 1}"]
        if number == len(standards):
            lines.append("answer yes")
        lines.append("click frm2_UP.cmdSaveAnd(1)")
    lines += ['expect message "This is the last standard file. Process the first one?"',
              f'expect DataFileName "{standards[0]}"', "expect SeqPhase 2", "expect frm2_UP.cmdInterpolation visible",
              "click frm2_UP.cmdInterpolation", "click frm_drift.Command1", "click frm_drift.cmdAccept", "expect SeqPhase 3"]
    first = names.index(standards[0])
    samples = [n for n in names[first:] if n not in standards] + [n for n in names[:first] if n not in standards]
    lines.append("click frm2_UP.cmdOpenNext")
    for number, name in enumerate(samples, 1):
        lines += [f'expect DataFileName "{name}"', f"expect SeqPos {names.index(name) + 1}"]
        wraps = number < len(samples) and names.index(samples[number]) < names.index(name)
        if wraps:
            lines.append("answer yes")
        lines.append(f"click frm2_UP.cmdSaveAnd({1 if number < len(samples) else 0})")
        if wraps:
            lines.append('expect message "This is the last sample file. Process the first one?"')
    lines += [f"expect SeqSamDone {len(names)}", f'expect frm2_UP.lblSamFiNum text "{len(samples)} / ALL DONE"',
              "expect no message"]
    return "\n".join(lines) + "\n"


def round5(number):
    return float(Decimal(repr(number)).quantize(Decimal("0.00001"), ROUND_HALF_EVEN))


def line_through(points):
    """Intercept and slope of the least squares."""
    x, y = zip(*points)
    mx, my = statistics.fmean(x), statistics.fmean(y)
    slope = sum((a - mx) * (b - my) for a, b in points) / sum((a - mx) ** 2 for a in x)
    return my - slope * mx, slope


def compare(names, folder):
    counters, records = master_file.read(folder / MASTER)
    standards = sum("91500" in name for name in names)
    hold(counters == (len(names), len(names), standards, standards), f"counters {counters}")
    hold([record[0] for record in records] == names, "order of the names")
    lines = {field: line_through([(k, round5(TRUE[field] / record[field])) for k, record in enumerate(records, 1)
                                  if record[2] == "Std"]) for field in TRUE}
    ages = {material: [] for material in AGES}
    for number, (name, record) in enumerate(zip(names, records), 1):
        spot = Spot(folder / name)
        for field, ratio in zip(master_file.MEASURED, ("Mean68", "Mean75", "Mean76")):
            mean = statistics.fmean(spot.ratios[ratio])
            hold(abs(record[field] - mean) <= 0.00000501 + 1e-9 * mean, f"{name}: {ratio} {record[field]}, not {mean}")
        for factor, measured, corrected in ((5, 11, 14), (7, 13, 16)):
            a, b = lines[measured]
            # The ratios of the standards go into the line as they are in the file, with five decimals.
            hold(abs(record[factor] - (a + b * number)) <= 0.000011, f"{name}: factor {record[factor]}, not {a + b * number}")
            if record[2] == "Std":
                hold(record[corrected] in (None, ""), f"{name}: a standard with a corrected ratio")
            else:
                product = round5(record[measured] * record[factor])
                hold(abs(record[corrected] - product) <= 0.0000101, f"{name}: corrected {record[corrected]}, not {product}")
        hold(record[15] in (None, "") and record[6] in (None, ""), f"{name}: 207/235 is corrected")
        for material in AGES:
            if material in name:
                ages[material].append(math.log1p(record[14]) / LAMBDA_238)
    for material, reference in AGES.items():
        mean = statistics.fmean(ages[material])
        print(f"{material}: {mean:.1f} +- {statistics.stdev(ages[material]):.1f} Ma of {len(ages[material])} spots, "
              f"{100 * (mean / reference - 1):+.2f} % of {reference}")
        hold(abs(mean / reference - 1) <= 0.02, f"{material}: {mean} Ma")


def main(runner, kit, measured, work):
    session = Path(work) / "session"
    shutil.rmtree(work, ignore_errors=True)
    session.mkdir(parents=True)
    for path in Path(measured, "upb-run").glob("*.csv"):
        shutil.copyfile(path, session / path.name)
    shutil.copytree(kit, Path(work) / "start-kit")
    names = sorted(path.name for path in session.glob("*.csv"))
    hold(len(names) == 68, f"{len(names)} files")
    script = Path(work, "batch.scn")
    script.write_text(scenario(names), encoding="utf-8")
    run = subprocess.run([runner, "--app-folder", Path(work) / "start-kit", "--work", session, script], check=False)
    if run.returncode != 0:
        return f"exit status {run.returncode}"
    compare(names, session)
    return "\n".join(faults)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) or None)
