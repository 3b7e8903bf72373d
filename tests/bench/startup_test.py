"""Checks what bench/startup.py measures and reads, without measuring.

    startup_test.py --bench DIRECTORY --tool PROGRAM
"""

import argparse
import subprocess
import sys
import unittest

OPTIONS = argparse.ArgumentParser()
OPTIONS.add_argument("--bench", required=True)
OPTIONS.add_argument("--tool", required=True)
options = OPTIONS.parse_args()
sys.dont_write_bytecode = True
sys.path.insert(0, options.bench)
startup = __import__("startup")


class Startup(unittest.TestCase):
    def test_document_has_its_size_and_is_accepted(self):
        self.assertEqual(len(startup.document()), startup.SIZE)
        subprocess.run([options.tool, "check", "--strict", "--quiet", "-"], check=True,
                       input=startup.document(), text=True)

    def test_last_number_is_taken(self):
        told = "  final number of relocations: 1902\n  number of relative relocations: 12\n" \
               "  final number of relocations: 2021\n==7== Collected : 2,010,345\n"
        self.assertEqual(startup.number_after("final number of relocations", told), 2021)
        self.assertEqual(startup.number_after("Collected", told), 2010345)

    def test_run_tells_time_and_page_faults(self):
        run = startup.run_of("/bin/true", "/dev/null")
        self.assertGreater(run["microseconds"], 10)
        self.assertGreater(run["faults"], 10)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
