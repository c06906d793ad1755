# What the start kit is made from: the composition of the glass, the isotopes and the sample of the example, the settings.

# NIST SRM 610, preferred values of Jochum et al. 2011 (Geostandards and Geoanalytical Research 35, 397-429) as given by the
# GeoReM database; uncertainty at 95 % confidence, None where none is stated. Oxides in mass percent, elements in ppm.
GLASS_TITLE = ("NIST SRM 610 glass, element ppm and its uncertainty (95 % confidence, 0 = not stated): preferred values of "
               "Jochum et al. 2011, Geostandards and Geoanalytical Research 35, 397-429, as given by GeoReM; "
               "Na, Al, Si and Ca from the oxides")
# element: (oxide in mass percent, uncertainty, atoms of the element, atoms of oxygen)
GLASS_OXIDES = {"Na": (13.4, 0.3, 2, 1), "Al": (1.95, 0.04, 2, 3), "Si": (69.7, 0.5, 1, 2), "Ca": (11.4, 0.2, 1, 1)}
# Standard atomic weights of IUPAC 2021 (those of O, Si and Ca abridged).
ATOMIC_WEIGHT = {"O": 15.999, "Na": 22.98976928, "Al": 26.9815384, "Si": 28.085, "Ca": 40.078}
GLASS_PPM = {
    "Li": (468, 24), "Be": (476, 31), "B": (350, 56), "F": (304, None), "Mg": (432, None), "P": (413, 46), "S": (575, 32),
    "Cl": (274, 67), "K": (464, 21), "Sc": (455, 10), "Ti": (452, 10), "V": (450, 9), "Cr": (408, 10), "Mn": (444, 13),
    "Fe": (458, 9), "Co": (410, 10), "Ni": (458.7, 4), "Cu": (441, 15), "Zn": (460, 18), "Ga": (433, 13), "Ge": (447, 78),
    "As": (325, 18), "Se": (138, 42), "Br": (93, None), "Rb": (425.7, 1), "Sr": (515.5, 1), "Y": (462, 11), "Zr": (448, 9),
    "Nb": (465, 34), "Mo": (417, 21), "Rh": (1.29, 0.07), "Pd": (1.21, 0.44), "Ag": (251, 9), "Cd": (270, 16),
    "In": (434, 19), "Sn": (430, 29), "Sb": (396, 19), "Te": (302, None), "Cs": (366, 9), "Ba": (452, 9), "La": (440, 10),
    "Ce": (453, 8), "Pr": (448, 7), "Nd": (430, 8), "Sm": (453, 11), "Eu": (447, 12), "Gd": (449, 12), "Tb": (437, 9),
    "Dy": (437, 11), "Ho": (449, 12), "Er": (455, 14), "Tm": (435, 10), "Yb": (450, 9), "Lu": (439, 8), "Hf": (435, 12),
    "Ta": (446, 33), "W": (444, 29), "Re": (49.9, 3.7), "Pt": (3.12, 0.08), "Au": (23.6, 1.7), "Tl": (59.6, 2.8),
    "Pb": (426, 1), "Bi": (384, 26), "Th": (457.2, 1), "U": (461.5, 1),
}
# The isotopes that laboratories measure. U235 is left out: the uranium of this glass is depleted, so its U235 does not stand
# for the element.
GLASS_ISOTOPES = (
    "Li7 Be9 B11 F19 Na23 Mg24 Mg25 Mg26 Al27 Si28 Si29 Si30 P31 S34 Cl35 K39 Ca42 Ca43 Ca44 Sc45 Ti47 Ti48 Ti49 V51 Cr52 Cr53 "
    "Mn55 Fe56 Fe57 Co59 Ni60 Ni62 Cu63 Cu65 Zn66 Zn68 Ga69 Ga71 Ge72 Ge74 As75 Se77 Se82 Br79 Br81 Rb85 Sr86 Sr88 Y89 Zr90 Zr91 "
    "Nb93 Mo95 Mo98 Rh103 Pd105 Pd108 Ag107 Ag109 Cd111 Cd114 In115 Sn118 Sn120 Sb121 Sb123 Te125 Te128 Cs133 Ba135 Ba137 Ba138 "
    "La139 Ce140 Pr141 Nd143 Nd145 Nd146 Sm147 Sm149 Eu151 Eu153 Gd157 Gd158 Gd160 Tb159 Dy161 Dy162 Dy163 Dy164 Ho165 Er166 Er167 "
    "Er168 Tm169 Yb171 Yb172 Yb173 Yb174 Lu175 Hf177 Hf178 Hf180 Ta181 W182 W183 W184 Re185 Re187 Pt194 Pt195 Au197 Tl203 Tl205 "
    "Pb204 Pb206 Pb207 Pb208 Bi209 Th232 U238").split()
# Passed over in the dwell file, which holds 100 isotopes at most.
SELDOM_MEASURED = (
    "F19 Si28 Si30 S34 Cl35 Cr53 Fe56 Ni62 Zn68 Ga71 Ge74 Se82 Br79 Br81 Sr86 Mo98 Pd108 Ag109 Cd114 Sn120 Sb123 Te128 Ba135 Nd145 "
    "Sm149 Eu151 Gd158 Gd160 Dy162 Dy164 Er168 Yb174 Hf180 W183 W184 Re187 Pt194").split()

# The example's quadrupole and sample. Columns: isotope, dwell time in ms, sensitivity in cps per ppm of the element while the
# glass is ablated, gas blank in cps, concentration in the sample in ppm (an invented basaltic glass).
EXAMPLE = (
    ("Li7", 20, 900, 160, 6.2), ("Mg25", 10, 110, 120, 43000), ("Al27", 10, 60, 300, 76000), ("Si29", 10, 1.5, 5200, 235000),
    ("Ca43", 10, 2.4, 220, 78000), ("Sc45", 20, 820, 240, 34), ("Ti49", 20, 62, 70, 8900), ("V51", 20, 1150, 90, 290),
    ("Mn55", 10, 1400, 350, 1320), ("Rb85", 20, 1100, 60, 9.5), ("Sr88", 20, 1300, 50, 320), ("Y89", 20, 1450, 45, 26),
    ("Zr90", 20, 760, 45, 145), ("Nb93", 20, 1350, 40, 16), ("Ba137", 20, 190, 45, 130), ("La139", 20, 1500, 40, 14),
    ("Ce140", 20, 1550, 45, 33), ("Nd146", 25, 290, 40, 20), ("Sm147", 40, 260, 30, 5.0), ("Eu153", 40, 900, 30, 1.65),
    ("Yb172", 40, 370, 30, 2.1), ("Hf178", 40, 440, 30, 3.6), ("Pb208", 40, 720, 70, 2.4), ("Th232", 40, 1250, 30, 1.4),
    ("U238", 40, 1600, 30, 0.42))
INTERNAL_STANDARD = ("Si29", 235000, 2350)
SECOND_STANDARD = ("Ca43", 78000, 1560)
THIRD_STANDARD = ("Al27", 76000, 1140)

ELEMENTS = (
    "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr Rb Sr Y Zr Nb Mo Tc Ru Rh Pd "
    "Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At Rn Fr Ra "
    "Ac Th Pa U Np Pu Am Cm").split()
# For the assignment by the periodic system: elements that go with calcium, those that go with aluminium; silicon for the rest.
WITH_CALCIUM = ("Be Mg Ca Sr Ba Ra Sc Y La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu Ac Th Pa U Np Pu Am Cm").split()
WITH_ALUMINIUM = "B Al Ga In Tl".split()


def glass_ppm(element):
    """Concentration in NIST SRM 610 and its uncertainty in ppm of the element."""
    if element in GLASS_OXIDES:
        percent, error, metal, oxygen = GLASS_OXIDES[element]
        weight = metal * ATOMIC_WEIGHT[element]
        factor = 10000.0 * weight / (weight + oxygen * ATOMIC_WEIGHT["O"])
        return round(percent * factor, 1), round(error * factor, 1)
    value, error = GLASS_PPM[element]
    return value, error or 0


def element_of(isotope):
    return isotope.rstrip("0123456789")


def settings(changes):
    """The records of a settings file in their order, as (value, key text) pairs; the changes are by key text."""
    name, ppm, error = INTERNAL_STANDARD
    lines = [(0, "Method")]
    for kind, head, data, column in (("CSV", 1, 2, 2), ("TXT", 1, 2, 2), ("XL", 2, 3, 2),
                                     ("XXXXX", 1, 2, 2), ("YYYYY", 1, 2, 2), ("ZZZZZ", 1, 2, 2)):
        lines += [(head, f"set{kind}isoLINE"), (data, f"set{kind}datLINE"), (column, f"set{kind}firstCOL")]
    lines += [
        ("", "==== ==== ==== Int. Std. ==== ==== ===="),
        ("nist", "setSTDabbr_IS"), (1, "setCPS_IS"), (1, "setBLK_IS"),
        ("nist-srm-610.stc", "setSTCfile_IS"), ("nbs-610-2004-12-19-1.stm", "setSTMfile_IS"), (1, "setFormer_Sel_IS"),
        (1, "setDwellFromFile_IS"), ("quadrupole.dwe", "setDWEfile_IS"), (20, "setIS_Dwell"), (1, "setISnum"),
        (name, "setIntSta"), (ppm, "setCcIntSta"), (error, "setErIntSta"),
        (SECOND_STANDARD[0], "setIntSta2"), (SECOND_STANDARD[1], "setCcIntSta2"), (SECOND_STANDARD[2], "setErIntSta2"),
        (90, "setMas2"),
        (THIRD_STANDARD[0], "setIntSta3"), (THIRD_STANDARD[1], "setCcIntSta3"), (THIRD_STANDARD[2], "setErIntSta3"),
        (200, "setMass3"), (0, "setPeriod"), (0, "setLinearIS"), (0, "setLinearRatiosIS"), (0, "setRatio_ppmIS"),
        (0, "setShow_linesIS"), (1, "setAllCurve---NOT USED")]
    lines += [(1, f"setRatioShow({k})") for k in range(1, 7)]
    lines += [(0, key) for key in ("setShowMinMax", "setRejMinMax", "setShowGrubbs", "setRejGrubbs", "setShowSD", "setRejSD")]
    lines += [(3, "setSD_IS"), (0, "setDataTable"), (1, "setMean_IS"), (0, "setOneLine_IS"), (0, "setTableFormat")]
    pairs = "Rb85 Sr88 Zr90 Hf178 Nb93 Y89 La139 Yb172 Ba137 La139 Th232 U238".split()
    lines += [(isotope, f"ratioName({k})") for k, isotope in enumerate(pairs)]
    lines += [(1, "setTestBlank")] + [(0, f"setRatBLK({k})") for k in range(1, 7)] + [(0, "reserve")] * 3
    for symbol in ELEMENTS:
        standard = INTERNAL_STANDARD
        if symbol in WITH_CALCIUM or symbol in WITH_ALUMINIUM:
            standard = SECOND_STANDARD if symbol in WITH_CALCIUM else THIRD_STANDARD
        lines.append((symbol, standard[0]))
    lines.append(("Example of the start kit: quadrupole, data in cps, one internal standard", "setComments_IS"))
    unknown = set(changes) - {key for _, key in lines}
    assert not unknown and len(lines) == 183, (unknown, len(lines))
    return [(changes.get(key, value), key) for value, key in lines]


# A settings file for each start of the example, and one for counts of a quadrupole whose tables begin on line 4 and 5.
SETTINGS_FILES = {
    "Kolvar-default-h.set": {},
    "Kolv-AGE-example.set": {"Method": 1, "setComments_IS": "Example of the start kit, opens the panel of the U/Pb path"},
    "Kolv-FLEX-example.set": {"Method": 3, "setComments_IS": "Example of the start kit, opens the panel of the FLEX path"},
    "zircon-counts.set": {
        "setCSVisoLINE": 4, "setCSVdatLINE": 5, "setCPS_IS": 0, "setDwellFromFile_IS": 0,
        "setCcIntSta": 153319, "setErIntSta": 1500,
        "setComments_IS": "Zircon: stoichiometric Si29, tables of counts with heads on line 4, uniform dwell time"},
}
