"""What plan and verify print as JSON is what docs/plan.schema.json describes.

usage: plan_schema_test.py PROGRAM
"""

import copy
import json
import pathlib
import subprocess
import sys

try:
    import jsonschema
except ImportError:
    sys.exit(77)

source = pathlib.Path(__file__).resolve().parents[2]
schema = json.loads((source / "docs/plan.schema.json").read_text())
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
examples = [str(source / "examples" / name) for name in ("orig.json", "cfg.json", "saved.cli")]


def printed(command, *files):
    result = subprocess.run([sys.argv[1], command, "--json", *files], capture_output=True, text=True)
    assert result.returncode in (0, 1), result.stderr
    return json.loads(result.stdout)


plans = [
    printed(command, running, wanted)
    for command in ("plan", "verify")
    for running in examples
    for wanted in examples
]
for plan in plans:
    validator.validate(plan)
assert {plan["verdict"] for plan in plans} >= {"nothing", "incomplete"}

# The schema leaves no key undescribed, and none out.
whole = plans[1]


def is_refused(change):
    other = copy.deepcopy(whole)
    change(other)
    return not validator.is_valid(other)


assert is_refused(lambda plan: plan.update(more=1))
for key in whole:
    assert is_refused(lambda plan: plan.pop(key)), key
for key in whole["summary"]:
    assert is_refused(lambda plan: plan["summary"].pop(key)), key
field = whole["objects"][0]["fields"][0]
for key in field:
    assert is_refused(lambda plan: plan["objects"][0]["fields"][0].pop(key)), key
assert is_refused(lambda plan: plan["objects"][0]["fields"][0].update({"class": "lost"}))
