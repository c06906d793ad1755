#!/usr/bin/env python3
"""Kills the program at random moments of a batch and looks whether a saved line was ever lost.

killed_sessions.py RUNNER KIT WORK [TIMES]. The session of the start kit runs as a scenario that saves its standards again and
again, each time with another selection, and prints the position after each save that has come back. After each kill the
master file must be whole and hold, of every line, what its last completed save wrote, or what the save that was under way
was about to write. The next run opens that file, and must read from it what this script reads.
"""
import json
import random
import shutil
import subprocess
import sys
import time
from pathlib import Path

import master_file

SEED = 20090107
MASTER = "0-session.msf"
OPENED = "opened"  # printed before the first save


def make_list(names):
    return "\n".join(["start 1", "click frm1_Settings.cmdCreate", 'choose frm_FileList.Dir1 "."',
                      "click frm_FileList.optStringSearch(0)", 'choose frm_FileList.Combo2 "3"',
                      "click frm_FileList.cmdReOrd", f"expect SeqCount {len(names)}", f'answer save "{MASTER}"',
                      "click frm_FileList.cmdSave", "expect no message", ""])


def session(names, first_end, rounds):
    """Opens the list and saves each standard in turn; the selection of each save ends at another slice."""
    standards = [k for k, name in enumerate(names, 1) if "-std-" in name]
    lines = ["start 1", f'answer open "{MASTER}"', "click frm1_Settings.cmdOpenMaster",
             *[f"print MasterRecs({k},{master_file.SELECTION})" for k in range(1, len(names) + 1)],
             f'put OutText "{OPENED}"', "print OutText",
             "mark frm2_UP.pict1 left shift 5", "mark frm2_UP.pict1 right shift 45"]
    wanted = []
    for k in range(rounds * len(standards)):
        end = first_end + k % 40
        lines += ["mark frm2_UP.pict1 left 61", f"mark frm2_UP.pict1 right {end}"]
        position = standards[k % len(standards)]
        if position == standards[-1]:
            lines.append("answer yes")
        lines.append("click frm2_UP.cmdSaveAnd(1)")
        if position == standards[-1]:
            lines.append('expect message "This is the last standard file. Process the first one?"')
        lines.append("print SeqPos")
        wanted.append((position, f"61 to {end}"))
    return "\n".join(lines) + "\n", wanted


def printed_values(output):
    """Whole lines only: the last one may have been cut."""
    return [json.loads(line)["value"] for line in output.decode("utf-8").split("\n")[:-1]]


def one_kill(command, script, wanted, files, master, chance, longest):
    """Runs until a random moment. The number of completed saves; a text that begins with "!" tells a fault."""
    before = [record[master_file.SELECTION] for record in master_file.read(master)[1]]
    run = subprocess.Popen([*command, script], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    time.sleep(chance.uniform(0, longest))
    run.kill()
    output, reported = run.communicate()
    if str(script) in reported.decode("utf-8"):
        return "!the program reported: " + reported.decode("utf-8")
    values = printed_values(output)
    read_back = [value or "" for value in values[:files]]
    if len(read_back) == files and read_back != [value or "" for value in before]:
        return f"!read {read_back}, the file holds {before}"
    done = max(0, len(values) - files - 1)
    expected = list(before)
    for position, selection in wanted[:done]:
        expected[position - 1] = selection
    try:
        counters, records = master_file.read(master)
    except (ValueError, OSError) as error:
        return f"!after {done} saves the master file is not whole: {error}"
    got = [record[master_file.SELECTION] for record in records]
    if done < len(wanted):
        under_way = list(expected)
        under_way[wanted[done][0] - 1] = wanted[done][1]
    else:
        under_way = expected
    if got not in (expected, under_way):
        return f"!after {done} saves the file holds {got}, not {expected}"
    if counters[3] != sum(record[2] == "Std" and bool(record[11]) for record in records):
        return f"!standards done {counters[3]}"
    return done


def main(runner, kit, work, times="100"):
    shutil.rmtree(work, ignore_errors=True)
    folder = Path(work) / "session"
    folder.mkdir(parents=True)
    shutil.copytree(kit, Path(work) / "start-kit")
    for path in Path(kit).glob("0[01]?-*.csv"):
        shutil.copyfile(path, folder / path.name)
    names = sorted(path.name for path in folder.glob("*.csv"))
    command = [runner, "--app-folder", Path(work) / "start-kit", "--work", folder]
    script = Path(work) / "list.scn"
    script.write_text(make_list(names), encoding="utf-8")
    subprocess.run([*command, script], check=True)

    # A whole session tells how long the kills have to be spread.
    script, wanted = Path(work) / "session.scn", None
    chance = random.Random(SEED)
    text, wanted = session(names, 81, 10)
    script.write_text(text, encoding="utf-8")
    begun = time.monotonic()
    subprocess.run([*command, script], check=True, stdout=subprocess.DEVNULL)
    longest = time.monotonic() - begun
    saves = []
    for turn in range(int(times)):
        text, wanted = session(names, 81 + turn % 19, 10)
        script.write_text(text, encoding="utf-8")
        result = one_kill(command, script, wanted, len(names), folder / MASTER, chance, longest)
        if isinstance(result, str):
            return f"kill {turn + 1}: {result[1:]}"
        saves.append(result)
    inside = sum(0 < n < len(wanted) for n in saves)
    print(f"{times} kills, {sum(saves)} completed saves, {inside} kills between the first and the last save; no line lost")
    if inside < int(times) // 4:
        return f"only {inside} kills fell between two saves: the test tells too little"
    return None


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
