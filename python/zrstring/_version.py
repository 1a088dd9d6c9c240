# Written by tools/write-derived.py: edit CMakeLists.txt and run that.
__version__ = "1.1.0"
