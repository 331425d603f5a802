"""What tools/mutate changes in a text, and what it leaves alone."""

import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(ROOT / "tools" / "mutation"))

from operators import mutants_of  # noqa: E402


def changed(text):
    """The text after each change."""
    return [mutant.apply(text) for mutant in mutants_of("some.cpp", text)]


class MutateTest(unittest.TestCase):
    def test_leaves_comments_and_directives_alone(self):
        self.assertEqual(changed('#include "a.h"\n/// True when a == 1 && b.\n// x = "y";\n/* 2 */\n'), [])

    def test_changes_a_text_as_a_whole_and_nothing_inside_it(self):
        self.assertEqual(changed('auto x = "a == 1 // 2";'), ['auto x = "";'])
        self.assertEqual(changed('auto x = R"(a "b" 1)";'), ['auto x = "";'])
        self.assertEqual(changed('auto x = "";'), ['auto x = "~";'])

    def test_makes_a_condition_never_and_always_true(self):
        self.assertEqual(
            changed("void F() { if (Ready()) return; }"),
            ["void F() { if ((Ready()) || true) return; }",
             "void F() { if ((Ready()) && false) return; }"])

    def test_turns_no_whole_condition_round_that_is_made_never_and_always_true(self):
        self.assertEqual(len(changed("void F() { if (!Ready()) return; }")), 2)
        self.assertEqual(len(changed("void F() { if (a == b) return; }")), 2)

    def test_swaps_comparisons_and_joins_within_a_condition(self):
        texts = changed("void F() { if (a == b && c < d) return; }")
        self.assertIn("void F() { if (a != b && c < d) return; }", texts)
        self.assertIn("void F() { if (a == b || c < d) return; }", texts)
        self.assertIn("void F() { if (a == b && c <= d) return; }", texts)

    def test_takes_no_template_for_a_comparison(self):
        self.assertEqual(changed("std::vector<std::pair<A, B>> x;"), [])

    def test_takes_no_reference_for_a_join(self):
        self.assertEqual(changed("Ledger Take(Recordset&& rows);"), [])

    def test_drops_calls_and_assignments(self):
        self.assertEqual(changed("void F() { Load(form); a.b = c; }"),
                         ["void F() { ; a.b = c; }", "void F() { Load(form); ; }"])

    def test_drops_no_declaration(self):
        for declaration in ("const Context& shared = Shared();", "double* const reals = Reals();",
                            "std::vector<Column> columns;", "using namespace text_id;"):
            self.assertEqual(changed("void F() { " + declaration + " }"), [], declaration)

    def test_drops_nothing_from_the_head_of_a_loop(self):
        texts = changed("void F() { for (; i < n; ++i) Add(i); }")
        self.assertEqual(texts, ["void F() { for (; false; ++i) Add(i); }",
                                 "void F() { for (; i <= n; ++i) Add(i); }"])

    def test_turns_the_condition_of_a_choice_round(self):
        self.assertEqual(changed("auto x = b(c ? d : e);"), ["auto x = b(!(c) ? d : e);"])

    def test_makes_a_question_answer_always_the_same(self):
        self.assertEqual(changed("bool F() { return Ready(); }"),
                         ["bool F() { return (Ready()) || true; }",
                          "bool F() { return (Ready()) && false; }"])

    def test_lets_a_function_return_nothing(self):
        self.assertEqual(changed("Text F() { return Name(); }"), ["Text F() { return {}; }"])

    def test_swaps_neighbours_of_a_list_of_texts(self):
        self.assertIn('auto x = {"b", "a"};', changed('auto x = {"a", "b"};'))

    def test_names_a_change_alike_wherever_its_line_moves_to(self):
        line = "void F() { Load(form); }\n"
        (before,) = mutants_of("some.cpp", line)
        (after,) = mutants_of("some.cpp", "// More.\n\n" + line)
        self.assertEqual(before.id, after.id)
        self.assertEqual(after.line, 3)

    def test_names_every_change_of_the_core_differently(self):
        names = [mutant.id for folder in ("control", "services", "forms", "register", "ledger")
                 for path in sorted((ROOT / folder).glob("*.cpp"))
                 for mutant in mutants_of(f"{folder}/{path.name}", path.read_text(encoding="utf-8"))]
        self.assertGreater(len(names), 1000)
        self.assertEqual(len(names), len(set(names)))


if __name__ == "__main__":
    unittest.main()
