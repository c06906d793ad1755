#!/usr/bin/env python3
"""A session of real zircons from the first file to the SUMMARY file: makes the scenario, runs it, and compares.

upb_session.py RUNNER KIT MEASURED WORK. Every spot of the folder upb-run goes through the screen with the same
intervals. What must come out is reckoned here from the files, with no code of the program; what others found in them and
the ages of the reference zircons stand below.
"""
import json
import math
import shutil
import statistics
import subprocess
import sys
from pathlib import Path

BLANK, SIGNAL = (1, 18), (33, 105)
HEAD_LINE, FIRST_COLUMN = 4, 2
PAIRS = {"Mean68": ("Pb206", "U238"), "Mean75": ("Pb207", "U235"), "Mean82": ("Pb208", "Th232"),
         "Mean382": ("U238", "Th232"), "Mean76": ("Pb207", "Pb206")}
SIGNALS = ("U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", None, None)  # of the SUMMARY file; no Pb204, no Hg
SMALLEST_NET = 0.01    # cps, in the place of a net signal of 0 or less
SILENT_BLANK = 0.0001  # cps, the mean of a blank that counted nothing; moves a ratio by less than 1 in a million
ERROR_TIMES = 2        # of the kit's default file
# 206/238 and 207/206 of the spots of a material, mean and s.d., as told beside the files.
FOUND = {"91500": (0.15526, 0.00134, 0.07464), "GJ1": (0.08538, 0.00076, 0.05921),
         "STDCZ": (0.04717, 0.00064, 0.05267), "GLASS": (0.24755, 0.00251, 0.90148)}
TRUE_91500 = 0.17917     # 206/238, Wiedenbeck et al. 1995
LAMBDA_238 = 1.55125e-4  # per Ma, Jaffey et al. 1971
# Reference age (Horstwood et al. 2016); age and s.d. that others got from these files with 91500 as standard. Ma
AGES = {"GJ1": (601.6, 605.8, 5.2), "STDCZ": (337.13, 341.7, 4.5)}

faults = []


def hold(fact, what):
    if not fact:
        faults.append(what)


def close(got, wanted, tolerance, what):
    hold(abs(got - wanted) <= tolerance, f"{what}: got {got}, not {wanted}")


class Spot:
    """One file: number of lines from the first slice on, blank, net signal, ratios of the slices of the signal."""

    def __init__(self, path):
        lines = path.read_bytes().decode("ascii").split("\r\n")
        heads = lines[HEAD_LINE - 1].split(",")
        self.slices = len(lines) - 1 - HEAD_LINE
        rows = [line.split(",") for line in lines[HEAD_LINE:HEAD_LINE + SIGNAL[1]]]
        table = {heads[i]: [float(row[i]) for row in rows] for i in range(FIRST_COLUMN - 1, len(heads))}
        self.column = {name: k for k, name in enumerate(table, 1)}
        self.blank = {name: cps[BLANK[0] - 1:BLANK[1]] for name, cps in table.items()}
        mean = {name: statistics.fmean(cps) or SILENT_BLANK for name, cps in self.blank.items()}
        net = {name: [v - mean[name] for v in cps[SIGNAL[0] - 1:]] for name, cps in table.items()}
        self.below = {name: sum(v <= 0 for v in cps) for name, cps in net.items()}
        self.net = {name: [v if v > 0 else SMALLEST_NET for v in cps] for name, cps in net.items()}
        self.ratios = {name: [a / b for a, b in zip(self.net[p], self.net[q])] for name, (p, q) in PAIRS.items()}

    def summary_numbers(self):
        """The 55 numbers of a line of the SUMMARY file, with the tolerance of their last decimal each."""
        ratios = list(self.ratios.values())
        d = math.sqrt(len(ratios[0]) - 1)
        sds = [ERROR_TIMES * statistics.stdev(r) for r in ratios]
        fine = [statistics.fmean(r) for r in ratios] + [sd / d for sd in sds] + sds

        def row(values):
            return [0.0 if name is None else values(name) for name in SIGNALS]

        whole = row(lambda n: statistics.fmean(self.net[n])) + row(lambda n: statistics.stdev(self.net[n]) / d)
        whole += row(lambda n: statistics.stdev(self.net[n])) + row(lambda n: statistics.fmean(self.blank[n]))
        whole += row(lambda n: statistics.stdev(self.blank[n]))
        return [(v, 0.00005 + 1e-9 * abs(v)) for v in fine] + [(v, 0.5 + 1e-9 * abs(v)) for v in whole]


def scenario(names):
    lines = ["today 2009-01-07 14:03:22", "start 1", "click frm1_Settings.mnuDefault(2)"]
    lines += [f'type frm_InputForm.txtCSV{box} "{n}"' for box, n in (("iso", 4), ("dat", 5), ("first", 2))]
    lines += ['answer save "session.def"', "click frm_InputForm.cmdSave", "click frm1_Settings.cmdIndividual"]
    for name in names:
        lines.append(f'answer open "{name}"')
        if name == names[0]:
            lines.append("click frm1_Settings.cmdChooseUP")
            lines += [f"mark frm2_UP.pict1 {button} {t}" for button, t in
                      zip(("left shift", "right shift", "left", "right"), BLANK + SIGNAL)]
        else:
            lines.append("click frm2_UP.cmdNewFile")
        lines += [f'expect DataFileName "{name}"', "expect HgMass 0", "expect ColPb204 0", "click frm2_UP.cmdApp"]
        lines += [f"print {what}" for what in ["nSlices", *columns(), *PAIRS]]
    return "\n".join(lines + ['expect clipboard ""', "expect no message", ""])


def columns():
    """Fields that tell which column was recognised as what."""
    return {"Col" + name: name for name in SIGNALS if name}


def compare_prints(spots, printed):
    values = iter(printed)
    for name, spot in spots.items():
        wanted = {"nSlices": spot.slices, **{field: spot.column[iso] for field, iso in columns().items()}}
        wanted |= {field: statistics.fmean(ratios) for field, ratios in spot.ratios.items()}
        for what, number in wanted.items():
            got = next(values)
            hold(got["what"] == what, f"{name}: prints {got['what']}, not {what}")
            close(got["value"], number, 1e-9 * abs(number), f"{name}: {what}")


def compare_floor(spots):
    """Only the glass, with hardly any U235, has slices at or below the blank: one such slice gives a 207/235 of some
    million and spoils the mean. All other means are those of the net signals themselves, as others found them."""
    for name, spot in spots.items():
        for isotope in (iso for iso in SIGNALS if iso):
            hold((spot.below[isotope] > 0) == ("GLASS" in name and isotope == "U235"), f"{name}: floor of {isotope}")


def compare_found(spots, printed):
    of_file = [{p["what"]: p["value"] for p in printed[k:k + len(printed) // len(spots)]}
               for k in range(0, len(printed), len(printed) // len(spots))]
    for material, (r68, sd68, r76) in FOUND.items():
        mine = [values for name, values in zip(spots, of_file) if material in name]
        hold(len(mine) == (8 if material == "GLASS" else 20), f"{material}: {len(mine)} spots")
        for what, wanted in (("Mean68", r68), ("Mean76", r76)):
            close(statistics.fmean(v[what] for v in mine), wanted, 0.0000051, f"{material}: {what}")
        close(statistics.stdev(v["Mean68"] for v in mine), sd68, 0.0000051, f"{material}: s.d. of 206/238")


def compare_summary(spots, path):
    """Every line of the SUMMARY file, and the ages that it leads to when 91500 is the standard."""
    lines = path.read_bytes().decode("utf-8").split("\r\n")
    hold(len(lines) == len(spots) + 3 and lines[-1] == "", f"{path.name}: {len(lines)} lines")
    heads = lines[1].split("\t")
    hold(len(heads) == 62, f"{path.name}: {len(heads)} heads")
    ratio = {}
    for (name, spot), line in zip(spots.items(), lines[2:]):
        fields = line.split("\t")
        texts = [name, "7 Jan. 2009", "1 to 18", "33 to 105", "mean", "3", "no"]
        hold(fields[:7] == texts and len(fields) == 63 and fields[62] == "", f"{name}: {fields[:7]}")
        for head, field, (wanted, tolerance) in zip(heads[7:], fields[7:], spot.summary_numbers()):
            close(float(field), wanted, tolerance, f"{name}: {head}")
        ratio[name] = float(fields[heads.index("Pb206/U238")])
    factor = TRUE_91500 / statistics.fmean(v for name, v in ratio.items() if "91500" in name)
    for material, (reference, age, sd) in AGES.items():
        ages = [math.log1p(v * factor) / LAMBDA_238 for name, v in ratio.items() if material in name]
        mean = statistics.fmean(ages)
        print(f"{material}: {mean:.1f} +- {statistics.stdev(ages):.1f} Ma, {100 * (mean / reference - 1):+.2f} % of {reference}")
        close(mean, reference, 0.02 * reference, f"{material}: age")
        # The SUMMARY file rounds 206/238 to four decimals.
        close(mean, age, 0.3, f"{material}: age as others found it")
        close(statistics.stdev(ages), sd, 0.3, f"{material}: s.d. of the ages")


def main(runner, kit, measured, work):
    session = Path(work) / "session"
    shutil.rmtree(work, ignore_errors=True)
    # The SUMMARY file lies beside the data, so the session runs on copies; they are also the current folder.
    session.mkdir(parents=True)
    for path in Path(measured, "upb-run").glob("*.csv"):
        shutil.copyfile(path, session / path.name)
    shutil.copytree(kit, session / "start-kit")
    spots = {path.name: Spot(path) for path in sorted(session.glob("*.csv"))}
    hold(len(spots) == 68, f"{len(spots)} files")
    script = Path(work, "session.scn")
    script.write_text(scenario(list(spots)), encoding="utf-8")
    run = subprocess.run([runner, "--app-folder", session / "start-kit", "--work", session, script],
                         stdout=subprocess.PIPE, text=True, encoding="utf-8", check=False)
    if run.returncode != 0:
        return f"exit status {run.returncode}"
    printed = [json.loads(line) for line in run.stdout.splitlines()]
    compare_floor(spots)
    compare_prints(spots, printed)
    compare_found(spots, printed)
    compare_summary(spots, session / "0_summary")
    return "\n".join(faults)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) or None)
