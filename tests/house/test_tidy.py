"""The sources of src/ follow the rules of .clang-tidy.

Arguments: the project's folder and the build's, whose compile commands list the sources and options. Then parts of the sources' paths;
all without.
"""

import concurrent.futures
import os
import pathlib
import shutil
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from clang import TIDY, Clang  # noqa: E402
from moving import Moving  # noqa: E402

ROOT, BUILD = map(pathlib.Path, sys.argv[1:3])
WANTED = sys.argv[3:] or [""]


class Tidy(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        with Moving("Compiling the common headers"):
            cls.clang = Clang(ROOT, BUILD, cls.folder.name, "-w")

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_a_mistake_is_found(self):
        path = pathlib.Path(self.folder.name, "src", "wrong.cpp")
        path.parent.mkdir()
        path.write_text("struct A { virtual ~A(); virtual void f(); };\nstruct B : A { virtual void f(); };\n", encoding="ascii")
        self.assertIn("modernize-use-override", self.clang.tidy(path, common=False))

    def test_every_source(self):
        files = {
            path: sources
            for path, sources in self.clang.compiled()
            if any(name.startswith("src/") and any(part in name for part in WANTED) for name in sources)
        }
        self.assertTrue(files, f"no source's path has {WANTED}")
        if WANTED == [""]:
            self.assertGreater(len(set().union(*files.values())), 150)
        with Moving("Checking sources") as moving, concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            for number, (path, said) in enumerate(zip(files, pool.map(self.clang.tidy, files)), 1):
                moving.step(number, len(files))
                with self.subTest(sorted(files[path])):
                    self.assertEqual(said, "", said)


if __name__ == "__main__":
    if not shutil.which(TIDY):
        print("clang-tidy 16 is not installed.")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
