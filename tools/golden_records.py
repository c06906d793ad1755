"""What the makers of golden settings and default files share: the kit's records with some lines changed."""
import sys


def text(words):
    """A field of text as the program writes it."""
    return '"' + words.replace('"', "'") + '"'


def changed_lines(kit, count, changes):
    """The lines of the kit's file, `count` records and an empty end; changes: line -> (key, value)."""
    lines = kit.read_bytes().decode().split("\r\n")
    assert len(lines) == count + 1 and lines[-1] == ""
    for number, (key, value) in changes.items():
        former, found = lines[number - 1].rsplit(",", 1)
        assert found == f'"{key}"', f"line {number} is {found}"
        assert former != str(value), f"line {number} does not change"
        lines[number - 1] = f'{value},"{key}"'
    return lines


def write_or_check(folder, files):
    """Writes the files, name -> lines; with --check compares. The exit status."""
    wrong = 0
    for name, lines in files.items():
        path = folder / name
        made = "\r\n".join(lines).encode()
        if "--check" not in sys.argv:
            folder.mkdir(exist_ok=True)
            path.write_bytes(made)
        elif path.read_bytes() != made:
            print(f"{path} is not what its table says")
            wrong = 1
    return wrong
