"""Reads a master file with no code of the program."""

FIELDS = 70
MEASURED, CORRECTED, FACTORS = (11, 12, 13), (14, 16), (5, 7)
SELECTION = 25


def fields_of(line):
    """One line: texts in double quotes, numbers bare, nothing where a field was never set."""
    fields, at = [], 0
    while True:
        if line[at:at + 1] == '"':
            end = line.index('"', at + 1)
            fields.append(line[at + 1:end])
            at = end + 1
        else:
            end = line.find(",", at)
            end = len(line) if end < 0 else end
            bare = line[at:end]
            fields.append(float(bare) if bare else None)
            at = end
        if at == len(line):
            return fields
        if line[at] != ",":
            raise ValueError(f"no comma at {at}: {line}")
        at += 1


def read(path):
    """(files, samples done, standards, standards done), lines 1 to n. ValueError when the file isn't whole."""
    text = path.read_bytes().decode("utf-8")
    if not text.endswith("\r\n"):
        raise ValueError("the last line has no end")
    records = [fields_of(line) for line in text[:-2].split("\r\n")]
    counters = tuple(int(group) for group in records[0][0].split("/"))
    if len(counters) != 4 or len(records) != counters[0] + 1:
        raise ValueError(f"{len(records)} lines for {records[0][0]}")
    for number, record in enumerate(records):
        if len(record) != FIELDS:
            raise ValueError(f"{len(record)} fields in line {number}")
    return counters, records[1:]
