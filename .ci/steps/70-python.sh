# The Python package: installed with the README's command into a fresh
# virtual environment, built as a wheel and installed from it into a second
# one, then its pytest suite (arrays, errors, settings, threads, a Dask
# cluster of worker processes, charts without a display) against the wheel.
need cmake g++ make python3-numpy python3-matplotlib python3-dask python3-distributed \
  python3-pytest python3-iapws python3-setuptools python3-pip python3-venv python3-wheel
root=$PWD
work=$(mktemp -d /tmp/kvt-python.XXXXXX)
trap 'rm -rf "$work"' EXIT
/usr/bin/python3 -m venv --system-site-packages "$work/source"
"$work/source/bin/python" -m pip install -q --no-build-isolation ./python
(cd "$work" && "$work/source/bin/python" -c "import kvtcore; print(kvtcore.HPT(3e6, 300))")
/usr/bin/python3 -m pip wheel -q --no-build-isolation --no-deps -w "$work/wheels" ./python
/usr/bin/python3 -c "import sys, zipfile; sys.exit('kvtcore/libkvtcore.so' not in zipfile.ZipFile(sys.argv[1]).namelist())" "$work"/wheels/kvtcore-*.whl
/usr/bin/python3 -m venv --system-site-packages "$work/wheel"
"$work/wheel/bin/python" -m pip install -q --no-index "$work"/wheels/kvtcore-*.whl
(cd "$work" && MPLBACKEND=Agg "$work/wheel/bin/python" -m pytest -q -p no:cacheprovider \
  "$root/python/tests")
