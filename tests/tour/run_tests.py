"""Runs one module of tests of outline_tour: run_tests.py PROGRAM SOURCE_TREE MODULE"""

import sys
import unittest

import tour


if __name__ == "__main__":
    program, tree, module = sys.argv[1:]
    tour.set_up(program, tree)
    unittest.main(module=module, argv=[module, "-v"])
