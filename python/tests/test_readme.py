import os
import pathlib
import re
import subprocess
import sys

import plurexdata

ROOT = pathlib.Path(__file__).resolve().parents[2]


def test_the_readme_example_decodes_a_capture(tmp_path):
    example = re.search(r"```python\n(.*?)```", (ROOT / "README.md").read_text(), re.S).group(1)
    capture = tmp_path / "capture.bin"
    capture.write_bytes((ROOT / "examples/clip-le.bin").read_bytes() + (ROOT / "examples/clip-be.bin").read_bytes())
    environment = dict(os.environ, PYTHONPATH=str(pathlib.Path(plurexdata.__file__).parent))
    printed = subprocess.run([sys.executable, "-c", example], cwd=tmp_path, env=environment, check=True,
                             capture_output=True, text=True).stdout
    assert printed.splitlines() == ["Final, second half 2024-07-14 20:31:00;04 1900-01-01 10:00:00:00"] * 2
