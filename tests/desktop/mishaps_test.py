#!/usr/bin/env python3
"""What is left behind when the desktop program is killed, or the disk is full.

    mishaps_test.py FSV FSV_DUMP SOURCE_FOLDER PICTURE_FOLDER [TEST...]
"""

import glob
import os
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

from desktop_program import Home, Program
from x_screen import Screen, wait_for

FSV, FSV_DUMP, SOURCES, PICTURES = sys.argv[1:5]
COPIES = 10_000  # of a sample in one file, so that its dump takes a while
COPIES_THAT_DONT_FIT = 1000
ROOM = 1 << 20  # bytes in a file


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content):
    with open(path, "wb") as file:
        file.write(content)


class Mishaps(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="mishaps.")
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.home = Home(self.folder)
        self.screen = Screen(1280, 900)
        self.addCleanup(self.screen.close)
        self.sample = os.path.join(self.folder, "sample.afp")
        self.dump = self.sample + ".txt"

    def start(self, content, **options):
        write(self.sample, content)
        self.program = Program(FSV, self.screen, self.home, [self.sample], **options)
        self.addCleanup(self.program.close)
        wait_for("the file's name in the title", lambda: self.sample in self.program.title())
        self.program.to_front()
        self.program.properties(lambda text: self.sample in text.split("\n")[0])

    def picture(self, name):
        self.screen.settled().save(os.path.join(PICTURES, name + ".png"))

    def ask_for_dump(self):
        """Ctrl+S, and Yes to the question whether the file that is there may go."""
        self.screen.keys("ctrl+s")
        question = self.program.wait_for_window("^Question$")
        self.screen.focus(question)
        self.screen.keys("alt+y")
        self.program.wait_till_gone("^Question$")

    def dumps_on_their_way(self):
        return glob.glob(glob.escape(self.dump) + ".*")

    def starts_again(self):
        """The store that was left is one that the program starts with."""
        before = self.home.settings()
        self.start(read(os.path.join(SOURCES, "samples/statement.afp")))
        self.screen.keys("ctrl+q")
        self.assertEqual(self.program.end(), 0)
        self.assertEqual(self.program.said(), "")
        after = self.home.settings()
        self.assertEqual({**after, **before}, after)
        self.assertEqual(after["LastFilesList1"], self.sample)

    def test_killed_in_a_dump(self):
        content = read(os.path.join(SOURCES, "samples/statement.afp")) * COPIES
        write(self.dump, b"the dump of yesterday")
        self.start(content)
        settings = read(self.home.store)
        self.ask_for_dump()

        def growing():
            return any(os.path.getsize(path) > 0 for path in self.dumps_on_their_way())

        wait_for("a dump on its way", growing)
        self.program.process.send_signal(signal.SIGKILL)
        self.assertEqual(self.program.end(), -signal.SIGKILL)
        self.assertTrue(self.dumps_on_their_way(), "the dump was done before it could be killed")
        self.assertEqual(read(self.dump), b"the dump of yesterday")
        self.assertEqual(read(self.sample), content)
        self.assertEqual(read(self.home.store), settings)
        self.starts_again()

    def full_disk(self, name):
        settings = self.home.settings()
        self.ask_for_dump()
        box = self.program.wait_for_window("^Stop$")
        self.screen.focus(box)
        self.picture(name)
        self.screen.keys("Return")
        self.program.wait_till_gone("^Stop$")
        self.assertEqual(self.home.settings(), settings)
        # The document is still there to work with.
        self.program.to_front()
        self.screen.keys("ctrl+e", "Down", "Down")
        self.program.properties(lambda text: "BPF" in text.split("\n")[0])
        self.screen.keys("ctrl+q")
        self.assertEqual(self.program.end(), 0)
        self.assertEqual(self.program.said(), "")
        self.starts_again()

    def test_no_room_on_the_device(self):
        os.symlink("/dev/full", self.dump)
        self.start(read(os.path.join(SOURCES, "samples/statement.afp")))
        self.full_disk("full-device")
        self.assertTrue(os.path.islink(self.dump))

    def test_no_room_for_the_file(self):
        """What fits of a dump stays."""
        write(self.dump, b"the dump of yesterday")
        sample = read(os.path.join(SOURCES, "samples/statement.afp"))

        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (ROOM, ROOM))

        self.start(sample * COPIES_THAT_DONT_FIT, preexec_fn=limit, restore_signals=False)
        self.full_disk("full-file")
        self.assertEqual(self.dumps_on_their_way(), [])
        whole = os.path.join(self.folder, "whole.txt")
        write(self.sample, sample * COPIES_THAT_DONT_FIT)
        subprocess.run([FSV_DUMP, "-o", whole, self.sample], check=True)
        self.assertEqual(read(self.dump), read(whole)[:ROOM])


if __name__ == "__main__":
    os.makedirs(PICTURES, exist_ok=True)
    unittest.main(argv=[sys.argv[0], *sys.argv[5:]], verbosity=2)
