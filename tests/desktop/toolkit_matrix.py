"""Runs the checks of the matrix of toolkits over the named applications.

usage: toolkit_matrix.py NAME...     NAME names a description in toolkits/"""

import sys
import unittest

from harness.testing import PicturingResult
from toolkits import description
from toolkits.checks import test_case


def main(names):
    loader = unittest.defaultTestLoader
    suite = unittest.TestSuite(loader.loadTestsFromTestCase(test_case(description(name))) for name in names)
    result = unittest.TextTestRunner(resultclass=PicturingResult, verbosity=2).run(suite)
    return 0 if result.wasSuccessful() and result.testsRun else 1


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1:]))
