#!/usr/bin/env python3
"""Generates oru_ogl's tables from the committed catalogue.

    generate.py TARGET CATALOGUE_DIR OUTPUT_DIR
    generate.py --outputs TARGET
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from oglgen import main  # noqa: E402

if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
