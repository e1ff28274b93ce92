import os
import subprocess

import pytest


@pytest.fixture(scope="session")
def tool():
    """Runs the built plurex tool (PLUREX_TOOL), whose output some tests hold the module to."""
    path = os.environ.get("PLUREX_TOOL")
    if not path:
        pytest.skip("PLUREX_TOOL is not set: the tool is not built")

    def run(*args):
        return subprocess.run([path, *args], check=True, capture_output=True, text=True).stdout

    return run
