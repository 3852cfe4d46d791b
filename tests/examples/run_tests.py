"""Runs the tests of one example program: run_tests.py PROGRAM SOURCE_TREE MODULE"""

import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tour"))

import tour


if __name__ == "__main__":
    program, tree, module = sys.argv[1:]
    tour.set_up(program, tree)
    unittest.main(module=module, argv=[module, "-v"])
