"""The default file of the U/Pb and FLEX paths: instrument, isotope ratios of nature, reference zircons."""
from make_start_kit_base import records

DEFAULT_FILE = "KolvAge-default-b01.def"
URANIUM_238_235 = 137.818  # Hiess et al. 2012, Science 335, 1610-1614

# Abundances of the mercury isotopes: IUPAC, Meija et al. 2016, Pure and Applied Chemistry 88, 293-306.
MERCURY = {198: 0.1004, 199: 0.1694, 200: 0.2314, 201: 0.1317, 202: 0.2974, 204: 0.0682}
MERCURY_TO_204 = {mass: round(part / MERCURY[204], 4) for mass, part in MERCURY.items() if mass != 204}
# Lead of the present day over Pb204: Stacey and Kramers 1975, Earth and Planetary Science Letters 26, 207-221.
LEAD_TO_204 = {206: 18.7, 207: 15.628, 208: 38.63}
# Dwell times of the simulated instrument, seconds.
DWELL = {"Hg202": 0.04, "Pb204": 0.05, "Pb206": 0.02, "Pb207": 0.05, "Pb208": 0.02, "Th232": 0.01, "U235": 0.05, "U238": 0.01}

# Reference zircons: name, abbreviation in file names, 206/238, 208/232 (0 = not stated), 207/206, age in Ma, source.
STANDARDS = (
    ("91500", "91500", 0.17917, 0.05391, 0.07488, 1062.4, "Wiedenbeck et al. 1995"),
    ("GJ-1", "GJ-1", 0.09781, 0.03012, 0.06011, 601.6, "Jackson et al. 2004; age: Horstwood et al. 2016"),
    ("Plesovice", "Plesovice", 0.05371, 0, 0.05332, 337.13, "Slama et al. 2008; age: Horstwood et al. 2016"),
    ("Temora-2", "Temora", 0.06679, 0, 0.05514, 416.78, "Black et al. 2004"),
    ("Mud Tank", "MudTank", 0.12021, 0, 0.06402, 731.8, "Horstwood et al. 2016"),
    ("FC-1", "FC-1", 0.18588, 0.05588, 0.07615, 1099.0, "Paces and Miller 1993"))
COMMENTS = ("Example of the start kit: simulated quadrupole, data in cps. Ratios of the reference zircons: 91500 Wiedenbeck 1995, "
            "GJ-1 Jackson 2004, Plesovice Slama 2008, Temora-2 Black 2004, Mud Tank Horstwood 2016, FC-1 Paces and Miller 1993; "
            "207/235 = 207/206 x 206/238 x 137.818; 0 = not stated")
MINERALS = ("sphene", "rutile", "monazite", "zircon", "xenotime", "allanite", "perovskite", "")


def ratio_75(ratio_68, ratio_76):
    """207Pb/235U, which the tables of reference zircons leave to be reckoned."""
    return ratio_76 * ratio_68 * URANIUM_238_235


def default_file():
    """The file's text: keyed lines, a line of ten fields and one of eight errors for each standard, keyed lines."""
    lines = [("", "This file contains personal defaults for KolvAGE data reduction program."),
             ("", "Tis file must be in the directory that is specified in file: 'start_path_KolvAGE'."), (1, "Method")]
    for kind, head, data, column in (("CSV", 1, 2, 1), ("TXT", 1, 2, 2), ("XL", 2, 3, 2),
                                     ("XXXXX", 1, 2, 2), ("YYYYY", 1, 2, 2), ("ZZZZZ", 1, 2, 2)):
        lines += [(head, f"set{kind}isoLINE"), (data, f"set{kind}datLINE"), (column, f"set{kind}firstCOL")]
    # The serial number: the first three characters of a file name.
    lines += [(0, "setSerialNo1"), (3, "setSerialNo2"), (1, "setSerialNo3")]
    lines += [(mineral, f"setMineral({k})") for k, mineral in enumerate(MINERALS)]
    lines.append(("std", "setSTDabbr"))
    lines += [(MERCURY_TO_204[mass], f"Hg{mass % 10}_4") for mass in (198, 199, 200, 201, 202)]
    lines += [(LEAD_TO_204[mass], f"Pb{mass % 10}_4") for mass in (206, 207, 208)]
    lines.append((URANIUM_238_235, "UU8_5"))
    lines += [(DWELL[name], f"dwe{name}") for name in ("U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204")]
    # Plots: cps on a log scale; 206/238, 207/235 and 207/206 with their lines.
    lines += [(0, "setLinear"), (0, "setLinearRatios"), (1, "set_68 "), (1, "set_75 "), (0, "set_082 "), (0, "set_382 "),
              (1, "set_76 "), (1, "setLinReg "), (0, "setConcordia"), (1, "setFormer_Sel")]
    # Refinement of the selection: ten percent on either side, measured on the Wetherill ratios by their residuals.
    lines += [(0, "setBzz_Prompt"), (10, "setZizzRange"), (0, "setZizzType"), (0, "setBzzPlot"), (0, "setBzzMethod")]
    # Outliers: shown where 206/238 or 207/206 is more than three s.d. off, rejected by the user.
    lines += [(1, "setShowOL"), (1, "setOL_68"), (0, "setOL_75"), (0, "setOL_082"), (0, "setOL_382"), (1, "setOL_76"),
              (0, "setRej_Man"), (3, "setOL_SD")]
    lines += [(1, "setHg_corr"), (0, "setComm_Pb"), (0, "set235_Calc"), (len(STANDARDS), "setNumSTD"), (0, "setPrefSTD")]
    rows = [(name, abbreviation, 0, 0, 0, ratio_68, round(ratio_75(ratio_68, ratio_76), 5), ratio_82, ratio_76, age)
            for name, abbreviation, ratio_68, ratio_82, ratio_76, age, _ in STANDARDS]
    errors = [(0,) * 8] * len(STANDARDS)
    behind = [(0, "setAver"), (0, "setMean_UP"), (0, "setTzero"), (0, "setDelay"), (1, "setPbAver"), (2, "setErr_times"),
              (2, "setErr "), (1, "setPasteDat"), (COMMENTS, "setComments ")]
    assert len(lines) == 77, len(lines)
    return records(lines + rows + errors + behind)
