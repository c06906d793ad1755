#!/usr/bin/env python3
"""Makes the files of start-kit/ and the tables of docs/example.md and docs/example-uranium-lead.md.

    tools/make_start_kit.py           writes them
    tools/make_start_kit.py --check   makes them in a temporary folder and compares byte for byte; also compares the
                                      statistical tables with published values, the examples with their true composition

The measurements are simulated: what a quadrupole would record of a gas blank and an ablation, with counting noise, laser
flicker, decay of the signal and a few spikes. Random numbers, the exponential function and the summation order are our own, so
every machine writes the same bytes. No module beyond the standard library is used.
"""
import math
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True
import make_start_kit_data as data  # noqa: E402
import make_start_kit_stats as stats  # noqa: E402
import make_start_kit_uranium as uranium  # noqa: E402
from make_start_kit_base import Random, deviation_of, exponential, fill_tables, mean_of, records  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent
KIT = "start-kit"
EXAMPLE_DOC = "docs/example.md"
ISOTOPES = [row[0] for row in data.EXAMPLE]
DWELL = {row[0]: row[1] / 1000.0 for row in data.EXAMPLE}  # seconds
SENSITIVITY = {row[0]: row[2] for row in data.EXAMPLE}     # cps per ppm
GAS_BLANK = {row[0]: row[3] for row in data.EXAMPLE}       # cps
SAMPLE = {row[0]: row[4] for row in data.EXAMPLE}          # ppm
GLASS = {name: data.glass_ppm(data.element_of(name))[0] for name in ISOTOPES}
SWEEP = sum(row[1] + 1 for row in data.EXAMPLE) / 1000.0   # seconds of one slice, with 1 ms to settle on each isotope

BLANK_FIRST, BLANK_LAST = 5, 45      # the intervals to mark, slices counted from 1
SIGNAL_FIRST, SIGNAL_LAST = 60, 120
SAMPLE_SLICES, GLASS_SLICES = 150, 160
# Spikes of the example: (isotope, slice): cps on top. The first lies before the blank to be marked, the others in the signal.
SPIKES = {("Zr90", 2): 4000, ("Pb208", 78): 9000, ("La139", 95): 60000, ("Ce140", 95): 110000, ("U238", 111): 3500}


def signal_shape(t, last):
    """Signal at slice t as a part of the full one: rise of two slices, slow decay, washout behind the last slice."""
    if t < 51:
        return 0.0
    if t < 53:
        return 0.35 if t == 51 else 0.85
    shape = exponential(-0.006 * (min(t, last) - 53))
    return shape * exponential(-1.4 * (t - last)) if t > last else shape


def measure(seed, ppm, slices, last, ablation, spikes):
    """A table of whole cps, isotope -> list with index 0 unused: counts of each dwell time divided by it."""
    random = Random(seed)
    table = {name: [0] for name in ISOTOPES}
    for t in range(1, slices + 1):
        # The laser's flicker is common to all isotopes of a slice, so ratios are free of it.
        strength = ablation * signal_shape(t, last) * (1.0 + 0.02 * random.normal())
        for name in ISOTOPES:
            cps = GAS_BLANK[name] + strength * SENSITIVITY[name] * ppm[name] + spikes.get((name, t), 0)
            milliseconds = round(1000 * DWELL[name])
            table[name].append(random.poisson(cps * DWELL[name]) * 1000 // milliseconds)
    return table


def interval(column, first, last):
    return column[first:last + 1]


def blank_of(table):
    """isotope -> (mean, s.d.) of the blank interval."""
    result = {}
    for name in ISOTOPES:
        values = interval(table[name], BLANK_FIRST, BLANK_LAST)
        mean = mean_of(values)
        result[name] = (mean, deviation_of(values, mean))
    return result


def net_of(table, blank):
    """isotope -> cps of the signal interval less the blank."""
    return {name: [v - blank[name][0] for v in interval(table[name], SIGNAL_FIRST, SIGNAL_LAST)] for name in ISOTOPES}


def three_places(x):
    """As .stm and .blk files hold their numbers: three decimals, never 0."""
    return math.floor(x * 1000.0 + 0.5) / 1000.0 or 0.001


def mean_and_error(values):
    mean = mean_of(values)
    return three_places(mean), three_places(deviation_of(values, mean) / math.sqrt(len(values)))


# ---- what the example must give ------------------------------------------------------------------------------------------

class Expected:
    """The check values, reckoned from the noisy table by the formula of the internal standard."""

    def __init__(self, table, glass_table, measured_glass):
        standard, standard_ppm, _ = data.INTERNAL_STANDARD
        self.blank = blank_of(table)
        net = net_of(table, self.blank)
        self.noisy_blank = sum(abs(v - self.blank[name][0]) > 3.0 * self.blank[name][1]
                               for name in ISOTOPES for v in interval(table[name], BLANK_FIRST, BLANK_LAST))
        spiked = {(name, t) for name, t in SPIKES if SIGNAL_FIRST <= t <= SIGNAL_LAST}
        self.all_slices, self.without_spikes, self.limit, self.tolerance = {}, {}, {}, {}
        for name in ISOTOPES:
            std, std_cps = GLASS[name], measured_glass[name][0]
            scale = (std / std_cps) * (standard_ppm * measured_glass[standard][0] / GLASS[standard])
            ratios = [a / b for a, b in zip(net[name], net[standard])]
            kept = [r for k, r in enumerate(ratios) if (name, SIGNAL_FIRST + k) not in spiked]
            self.all_slices[name] = mean_of(ratios) * scale
            self.without_spikes[name] = mean_of(kept) * scale
            mean, spread = self.blank[name]
            self.limit[name] = std * (3.0 * spread + mean) / (std_cps - mean)
        # Three standard uncertainties of counting statistics, from the true rates: both signals and both blanks, of the isotope
        # and of the internal standard, in the sample and in the glass.
        for name in ISOTOPES:
            variance = 0.0
            for isotope in (name, standard) if name != standard else ():
                for ppm, ablation, last in ((SAMPLE, SAMPLE_ABLATION, SAMPLE_LAST), (GLASS, 1.0, GLASS_LAST)):
                    variance += counting_variance(isotope, ppm[isotope] * ablation, last)
            self.tolerance[name] = 3.0 * math.sqrt(variance)
        # Grubbs' test at 5 % on the blank-corrected cps: which smallest and largest values of a column it rejects.
        critical = float(f"{stats.grubbs(SIGNAL_LAST - SIGNAL_FIRST + 1, 0.05):.4f}")
        self.grubbs = []
        for name in ISOTOPES:
            mean = mean_of(net[name])
            spread = deviation_of(net[name], mean)
            for extreme in (min(net[name]), max(net[name])):
                if abs(extreme - mean) / spread > critical:
                    self.grubbs.append((name, SIGNAL_FIRST + net[name].index(extreme)))


def counting_variance(name, ppm, last):
    """Relative variance of the mean net cps of the signal interval by counting statistics alone."""
    n, n_blank = SIGNAL_LAST - SIGNAL_FIRST + 1, BLANK_LAST - BLANK_FIRST + 1
    shape = mean_of([signal_shape(t, last) for t in range(SIGNAL_FIRST, SIGNAL_LAST + 1)])
    net, gas, seconds = SENSITIVITY[name] * ppm * shape, GAS_BLANK[name], DWELL[name]
    return ((net + gas) / (n * seconds) + gas / (n_blank * seconds)) / (net * net)


# ---- files ---------------------------------------------------------------------------------------------------------------

def data_file(table, slices):
    lines = ["Time [sec]," + ",".join(ISOTOPES)]
    for t in range(1, slices + 1):
        lines.append(f"{t * SWEEP:.3f}," + ",".join(str(table[name][t]) for name in ISOTOPES))
    return "".join(line + "\r\n" for line in lines)


def spreadsheet(table, names, slices):
    """A table to copy and paste, as the XML that spreadsheet programs read: heads, then a line for each slice."""
    def cells(kind, values):
        return "<Row>" + "".join(f'<Cell><Data ss:Type="{kind}">{v}</Data></Cell>' for v in values) + "</Row>"
    lines = ['<?xml version="1.0"?>', '<?mso-application progid="Excel.Sheet"?>',
             '<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"'
             ' xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">',
             '<Worksheet ss:Name="Copy this block"><Table>', cells("String", names)]
    lines += [cells("Number", [table[name][t] for name in names]) for t in slices]
    lines += ["</Table></Worksheet>", "</Workbook>"]
    return "".join(line + "\r\n" for line in lines)


def statistical_table(title, rows):
    return title + "\r\n" + "".join(f"{n}," + ",".join(f"{v:.4f}" for v in values) + "\r\n" for n, values in rows)


def dwell_rows():
    """The example's dwell times first, then 20 ms for the other isotopes that are commonly measured; 100 rows at most."""
    others = [name for name in data.GLASS_ISOTOPES if name not in ISOTOPES and name not in data.SELDOM_MEASURED]
    return [(name, round(1000 * DWELL[name])) for name in ISOTOPES] + [(name, 20) for name in others]


SAMPLE_LAST, GLASS_LAST = 128, 138  # last slice of the ablation
PASTE_ISOTOPES = ["Si29", "Ca43", "Sr88", "La139", "Th232", "U238"]  # of the table to copy: end of the blank, rise, signal
SAMPLE_ABLATION = 1.15              # the sample gives more aerosol than the glass


def make():
    """All files: path below the root -> bytes; and a message for each result that differs from the truth."""
    sample = measure(20041219, SAMPLE, SAMPLE_SLICES, SAMPLE_LAST, SAMPLE_ABLATION, SPIKES)
    glass = measure(610610610, GLASS, GLASS_SLICES, GLASS_LAST, 1.0, {})
    glass_net = net_of(glass, blank_of(glass))
    measured_glass = {name: mean_and_error(glass_net[name]) for name in ISOTOPES}
    gas = {name: mean_and_error(interval(glass[name], BLANK_FIRST, BLANK_LAST)) for name in ISOTOPES}
    files = {
        "start_path": records([(KIT,)]),
        "start_path_KolvAGE": records([(KIT,)]),
        "grubbs.dat": statistical_table("Grubbs' test, one-sided critical values: n, 10 %, 7.5 %, 5 %, 2.5 %, 1 %",
                                        stats.grubbs_rows()),
        "student.dat": statistical_table("Student's t, one-sided quantiles: degrees of freedom, "
                                         + ", ".join(f"{p:g}" for p in stats.STUDENT_P), stats.student_rows()),
        "nist-srm-610.stc": records([(data.GLASS_TITLE, "ppm", "ppm")] + [
            (name, *data.glass_ppm(data.element_of(name))) for name in data.GLASS_ISOTOPES]),
        "quadrupole.dwe": records([("Dwell times of the example's quadrupole in milliseconds, 20 ms for all other isotopes", "ms")]
                                  + dwell_rows()),
        "2004-12-19-a.blk": records([(name, *gas[name]) for name in ISOTOPES]),
        "nbs-610-2004-12-19-1.stm": records([(name, *measured_glass[name]) for name in ISOTOPES]),
        "example-1.csv": data_file(sample, SAMPLE_SLICES),
        "nist-610-1.csv": data_file(glass, GLASS_SLICES),
        "Example-Copy-Paste.xls": spreadsheet(sample, PASTE_ISOTOPES, range(45, 69)),
    }
    for name, changes in data.SETTINGS_FILES.items():
        files[name] = records(data.settings(changes))
    expected = Expected(sample, glass, measured_glass)
    lead = uranium.Made()
    files.update(lead.files)
    files = {f"{KIT}/{name}": text.encode("ascii") for name, text in files.items()}
    files[EXAMPLE_DOC] = document(expected).encode("utf-8")
    files[uranium.DOC] = fill_tables((ROOT / uranium.DOC).read_text(encoding="utf-8"), lead.tables).encode("utf-8")
    return files, check_expected(expected) + lead.faults()


def document(expected):
    """docs/example.md with its tables made anew."""
    tables = {
        "instrument": ["| isotope | dwell, ms | cps per ppm | gas blank, cps | sample, ppm | glass, ppm |",
                       "| --- | --: | --: | --: | --: | --: |"]
        + [f"| {name} | {dwell} | {sense} | {gas} | {ppm} | {GLASS[name]} |" for name, dwell, sense, gas, ppm in data.EXAMPLE],
        "spikes": ["| isotope | slice | cps on top |", "| --- | --: | --: |"]
        + [f"| {name} | {t} | {cps} |" for (name, t), cps in SPIKES.items()],
        "results": ["| isotope | true, ppm | tolerance, % | all slices, ppm | without the spikes, ppm | limit of detection, ppm |",
                    "| --- | --: | --: | --: | --: | --: |"]
        + [f"| {name} | {SAMPLE[name]} | {100 * expected.tolerance[name]:.2f} | {expected.all_slices[name]:.9g} "
           f"| {expected.without_spikes[name]:.9g} | {expected.limit[name]:.7g} |" for name in ISOTOPES],
        "noisy": [f"**{expected.noisy_blank}** values of the blank interval lie more than three s.d. from their mean."],
        "grubbs": ["| isotope | slice |", "| --- | --: |"] + [f"| {name} | {t} |" for name, t in expected.grubbs],
    }
    return fill_tables((ROOT / EXAMPLE_DOC).read_text(encoding="utf-8"), tables)


# ---- checks --------------------------------------------------------------------------------------------------------------

def check_expected(expected):
    """The reckoned concentrations must agree with the true ones within counting statistics."""
    wrong = []
    for name in ISOTOPES:
        off = expected.without_spikes[name] / SAMPLE[name] - 1.0
        if abs(off) > expected.tolerance[name] + 1e-12:
            wrong.append(f"example, {name}: {expected.without_spikes[name]:.6g} ppm, true {SAMPLE[name]}, {100 * off:+.2f} %")
    return wrong


def check_files(files):
    """Sizes that the program's readers demand, and that no name of the example is missing from a reference file."""
    lines = {Path(name).name: content.decode().split("\r\n") for name, content in files.items() if name.startswith(KIT)}
    sizes = {"grubbs.dat": 99, "student.dat": 102, "example-1.csv": 151, **{name: 183 for name in data.SETTINGS_FILES}}
    wrong = [f"{name}: {len(lines[name]) - 1} lines, not {n}" for name, n in sizes.items() if len(lines[name]) - 1 != n]
    for reference, limit in (("nist-srm-610.stc", 501), ("quadrupole.dwe", 101), ("nbs-610-2004-12-19-1.stm", 100),
                             ("2004-12-19-a.blk", 100)):
        names = [line.split(",")[0].strip('"') for line in lines[reference]]
        wrong += [f"{reference}: no {name}" for name in ISOTOPES if name not in names]
        if len(names) - 1 > limit:
            wrong.append(f"{reference}: more than {limit} lines")
    return wrong


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__)
        return 2
    files, wrong = make()
    wrong += stats.check_tables() + check_files(files)
    folder = ROOT
    if arguments:
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            write(folder, files)
            for path in files:
                if not (ROOT / path).is_file() or (ROOT / path).read_bytes() != (folder / path).read_bytes():
                    wrong.append(f"{path} differs from what this script makes")
        extra = {f"{KIT}/{p.name}" for p in (ROOT / KIT).iterdir()} - set(files)
        wrong += [f"{path} is not made by this script" for path in sorted(extra)]
    else:
        write(folder, files)
    for line in wrong:
        print(line)
    print(f"{len(files)} files {'compared' if arguments else 'written'}, {len(wrong)} faults")
    return 1 if wrong else 0


def write(folder, files):
    for path, content in files.items():
        (folder / path).parent.mkdir(parents=True, exist_ok=True)
        (folder / path).write_bytes(content)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
