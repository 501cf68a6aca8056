"""Builds libkvtcore.so from the checkout's sources and carries it inside the
package, so that an installed package or wheel needs no compiler.

The library comes, in this order, from KVTCORE_LIBRARY (a path to a built
libkvtcore.so), or from a CMake build of the checkout around this folder
(library target only, in build/python-lib). The wheel is tagged for the
platform (py3-none-linux_x86_64, say): the package loads the library with
ctypes, so it fits any Python 3 of that machine kind.
"""
import os
import shutil
import subprocess

from setuptools import setup
from setuptools.command.build_py import build_py
from setuptools.dist import Distribution

try:
    from wheel.bdist_wheel import bdist_wheel
except ImportError:  # wheel not installed: pip install still works
    bdist_wheel = None

HERE = os.path.dirname(os.path.abspath(__file__))
CHECKOUT = os.path.dirname(HERE)
LIBRARY = "libkvtcore.so"


def built_library():
    """The path of a libkvtcore.so to carry: given, or built from the checkout."""
    given = os.environ.get("KVTCORE_LIBRARY")
    if given:
        return given
    if not os.path.exists(os.path.join(CHECKOUT, "CMakeLists.txt")):
        raise RuntimeError("no checkout around python/ and no KVTCORE_LIBRARY: "
                           "set KVTCORE_LIBRARY to a built libkvtcore.so")
    build = os.path.join(CHECKOUT, "build", "python-lib")
    jobs = os.environ.get("KVTCORE_JOBS", "2")
    subprocess.check_call(["cmake", "-S", CHECKOUT, "-B", build, "-DCMAKE_BUILD_TYPE=Release",
                           "-DKVT_BUILD_TESTS=OFF", "-DKVT_BUILD_BENCH=OFF"])
    subprocess.check_call(["cmake", "--build", build, "--target", "kvtcore", "-j", jobs])
    return os.path.join(build, LIBRARY)


class BuildWithLibrary(build_py):
    def run(self):
        super().run()
        target = os.path.join(self.build_lib, "kvtcore", LIBRARY)
        shutil.copyfile(os.path.realpath(built_library()), target)


class BinaryDistribution(Distribution):
    def has_ext_modules(self):
        return True


commands = {"build_py": BuildWithLibrary}
if bdist_wheel is not None:
    class PlatformWheel(bdist_wheel):
        def get_tag(self):
            return ("py3", "none", super().get_tag()[2])
    commands["bdist_wheel"] = PlatformWheel

setup(cmdclass=commands, distclass=BinaryDistribution)
