"""Installs the package in a virtual environment, with pip and then with CMake, uses it without any
variable, and uninstalls it. The arguments are CMake and a build folder of the library.
"""

import functools
import os
import pathlib
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parents[2]
CMAKE, BUILD = sys.argv[1], os.path.abspath(sys.argv[2])
for variable in ("ZRSTRING_LIBRARY", "PYTHONPATH", "PYTHONDONTWRITEBYTECODE", "DESTDIR"):
    os.environ.pop(variable, None)
run = functools.partial(subprocess.check_output, shell=True, text=True)

with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    run(f"'{sys.executable}' -m venv prefix")
    run(f"'{CMAKE}' --install '{BUILD}' --component Runtime --prefix prefix")
    configure = f"'{CMAKE}' -S '{TOP}' -B build -DZRSTRING_BUILD_TESTS=OFF"
    configure += f" -DZRSTRING_INSTALL_PYTHON=ON -DPython3_EXECUTABLE={folder}/prefix/bin/python"
    install = f"'{CMAKE}' --install build --component Python --prefix prefix"
    pip = "prefix/bin/python -m pip"
    for installing, uninstalling in (
        (f"{pip} install --no-index '{TOP}/python'", f"{pip} uninstall -y zrstring"),
        (f"{configure} && {install}", f"'{CMAKE}' --build build --target uninstall"),
    ):
        run(installing)
        use = "from importlib import metadata; import zrstring as z; "
        use += "print(z.String('used'), metadata.version('zrstring') == z.__version__, z.__file__)"
        used = run(f'prefix/bin/python -c "{use}"')
        assert used.startswith("used True ") and "/prefix/lib/python" in used, used
        run(uninstalling)
        left = list(pathlib.Path("prefix").rglob("*zrstring*"))
        assert not left, left
