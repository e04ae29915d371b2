# Copyright Velmorant. All Rights Reserved.
"""Prints a line for each file, "accepted" or "refused", by the JSON Schema in the first one. Ends with 77 where the validator is missing."""
import json
import sys

try:
    import jsonschema
except ImportError:
    sys.exit(77)

with open(sys.argv[1], encoding="utf-8") as stream:
    schema = json.load(stream)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
for path in sys.argv[2:]:
    with open(path, encoding="utf-8") as stream:
        print("accepted" if validator.is_valid(json.load(stream)) else "refused")
