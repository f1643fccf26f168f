# SPDX-License-Identifier: GPL-3.0-or-later
"""One story: the programs it starts, the folder of its class files, a picture when it fails."""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import traceback

from support.program import Program

SAMPLE = pathlib.Path(os.environ["TALLYROLL_SAMPLE"])


class Story:
    def __init__(self, folder, first_start):
        self.folder = pathlib.Path(folder)
        self.programs = []
        if not first_start:
            keep_settings("[TALLYRLG8]\nstartup\\TOUR=1\n")

    def start(self, *arguments, **options):
        self.programs.append(Program(sys.argv[1], *map(str, arguments), **options))
        return self.programs[-1]

    def sample(self, name="MATH.TYR"):
        """A copy of the sample class that the story may change."""
        path = self.folder / name
        shutil.copy(SAMPLE, path)
        return str(path)

    def path(self, name):
        return str(self.folder / name)

    def stop(self):
        for program in self.programs:
            program.stop()


def take_picture(name):
    subprocess.run(["import", "-window", "root", name], timeout=20, check=False)
    print(f"the screen as it was: {os.path.abspath(name)}")


def keep_settings(text):
    """The settings of a program that was here before, unless there are some."""
    folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "Tallyroll"
    folder.mkdir(parents=True, exist_ok=True)
    path = folder / "Tallyroll.conf"
    if not path.exists():
        path.write_text(text)


def run(tell, first_start=False):
    """Tells the story; on failure the screen is kept in the current folder."""
    with tempfile.TemporaryDirectory(dir=os.environ["HOME"]) as folder:
        story = Story(folder, first_start)
        try:
            tell(story)
        except Exception:  # whatever went wrong, the picture says more
            traceback.print_exc()
            take_picture(pathlib.Path(sys.argv[0]).stem + "_failed.png")
            sys.exit(1)
        finally:
            story.stop()
