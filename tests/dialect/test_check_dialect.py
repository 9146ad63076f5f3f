"""What scripts/check-dialect finds in small projects made here, and what it leaves alone."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-dialect"
BARE = "the body of a statement stands in braces"
LABEL = r'a label of the log is spelt: constexpr const char *kSource = R"(..\..\tutorial\...)";'


class CheckDialect(unittest.TestCase):
    def run_on(self, *arguments):
        return subprocess.run([sys.executable, SCRIPT, *arguments], capture_output=True, text=True, check=False)

    def complaints(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = self.run_on(folder)
        self.assertEqual(run.stderr, "")
        lines = run.stdout.splitlines()
        self.assertEqual(run.returncode, 1 if lines else 0)
        return lines

    def bare_lines(self, code):
        lines = self.complaints({"cpp/a.cpp": code})
        for line in lines:
            self.assertTrue(line.endswith(": " + BARE), line)
        return [int(line.split(":")[1]) for line in lines]

    def test_bodies_in_braces_are_sound(self):
        self.assertEqual(self.bare_lines(r"""
            void f() {
                if (a(b, "if (c) d;")) {
                } else if (c) { // else nothing
                } else {
                }
                if constexpr (kD) {
                }
                for (int i = 0; i < 3; ++i) {
                    do {
                        x = i ? 'a' : '"';
                    } while (x && [] { return 1; }());
                }
                while (y) {
                }
                switch (z) {
                case 1:
                    break;
                }
            }
        """), [])

    def test_names_each_bare_body(self):
        self.assertEqual(self.bare_lines("""
            void f() {
                if (a)
                    b();
                else
                    c();
                for (int i : {1, 2})
                    while (d(i))
                        e();
                if constexpr (kD)
                    return;
            }
        """), [4, 6, 8, 9, 11])

    def test_names_a_bare_do_and_its_end(self):
        # Without braces its end looks like a loop.
        self.assertEqual(self.bare_lines("void f() {\n do\n a();\n while (b);\n}"), [3, 4])

    def test_an_empty_loop_is_bare(self):
        self.assertEqual(self.bare_lines("void f() { while (next()); }"), [1])

    def test_a_second_loop_behind_do_is_no_end_of_it(self):
        self.assertEqual(self.bare_lines("void f() {\n do {\n } while (a);\n while (b)\n c();\n}"), [5])

    def test_a_string_may_be_a_body(self):
        self.assertEqual(self.bare_lines('const char *f() {\n if (a)\n "text";\n else\n R"(raw)";\n}'), [3, 5])

    def test_comments_texts_and_directives_are_no_code(self):
        self.assertEqual(self.bare_lines(
            '// if (a) b;\n/* for (;;)\n c; */\n#define TRY(x) \\\n if (x) \\\n d()\n'
            'auto e = "if (f) g;";\nauto h = R"x(while (i) ")" j;)x";\nauto k = 1\'000;\n'), [])

    def pointer_uses(self, files):
        complaint = ": a pointer is compared with nullptr: "
        return [line.replace("cpp/", "").replace(complaint, " ") for line in self.complaints(files)]

    def test_pointers_are_no_truth_values(self):
        self.assertEqual(self.pointer_uses({"cpp/a.cpp": """
            bool f(const Thing *a, QPointer<Thing> b) {
                auto *const c = d->e();
                if (!a || b) {
                }
                while (c) {
                }
                g(!h.a, c ? 1 : 2);
                return a && b->good();
            }
        """}), ["a.cpp:4 a", "a.cpp:4 b", "a.cpp:6 c", "a.cpp:8 a", "a.cpp:8 c", "a.cpp:9 a"])

    def test_members_are_known_from_the_header(self):
        self.assertEqual(self.pointer_uses({
            "cpp/a.h": "class A\n{\n    std::unique_ptr<B> m_b;\n    B *m_c = nullptr;\n    bool m_d;\n};\n",
            "cpp/a.cpp": "void A::f()\n{\n    if (m_b) {\n    }\n    g(m_d && !m_c);\n    if (m_d) {\n    }\n}\n",
        }), ["a.cpp:3 m_b", "a.cpp:5 m_c"])

    def test_a_name_is_a_pointer_in_its_function_only(self):
        self.assertEqual(self.pointer_uses({
            "cpp/a.cpp": "void f(B *b)\n{\n}\n\nvoid g(bool b)\n{\n    if (b) {\n    }\n}\n"}), [])

    def test_what_a_pointer_leads_to_may_be_a_truth_value(self):
        self.assertEqual(self.pointer_uses({"cpp/a.cpp": """
            bool f(B *b, int n, int m) {
                const int product = n * m;
                if (b->good() && !b->bad && *b && b != nullptr && n == b || m == b && product) {
                }
                return b == nullptr || n;
            }
        """}), [])

    def test_test_functions_are_in_camel_case(self):
        code = ("class tst_A : public QObject\n{\nprivate Q_SLOTS:\n    void init();\n    void saysWhat_data();\n"
                "    void says_what_it_does();\n    void Says();\n    void says_what_data();\n\nprivate:\n    void left_alone();\n};\n")
        wrong = "a test function is named in camelCase: "
        self.assertEqual(self.complaints({"tests/unit/tst_A.cpp": code, "cpp/a.h": code}), [
            f"tests/unit/tst_A.cpp:6: {wrong}says_what_it_does",
            f"tests/unit/tst_A.cpp:7: {wrong}Says",
            f"tests/unit/tst_A.cpp:8: {wrong}says_what_data",
        ])

    def test_test_classes_are_named_as_their_file(self):
        self.assertEqual(
            self.complaints({
                "tests/unit/tst_A.cpp": "QTEST_MAIN(tst_A)\n",
                "tests/unit/tst_B.cpp": "\nQTEST_GUILESS_MAIN(TestB)\n",
                "tests/unit/fixture.cpp": "QTEST_MAIN(Fixture)\n",
            }), ["tests/unit/tst_B.cpp:2: the class of a test is named as its file: tst_B"])

    def test_log_labels_have_one_spelling(self):
        self.assertEqual(
            self.complaints({
                "cpp/a.cpp": 'constexpr const char *kSource = R"(..\\..\\tutorial\\a.cpp)";\n',
                "cpp/a.h": 'inline constexpr const char *kOfTheManager = R"(..\\..\\tutorial\\b.cpp)";\n',
                "cpp/b.cpp": 'constexpr const char *kSource = "..\\\\..\\\\tutorial\\\\b.cpp";\n',
                "cpp/c.cpp": 'constexpr auto kSource = R"(..\\..\\tutorial\\c.cpp)";\n',
                "main.cpp": '\nlogDebug(R"(..\\..\\tutorial\\main)", "main", 1);\n',
                "tests/unit/a.cpp": 'auto text = "..\\\\..\\\\tutorial\\\\a.cpp";\n',
            }), [f"main.cpp:2: {LABEL}", f"cpp/b.cpp:1: {LABEL}", f"cpp/c.cpp:1: {LABEL}"])

    def test_a_folder_without_sources_is_no_project(self):
        self.assertEqual(len(self.complaints({"README.md": ""})), 1)

    def test_refuses_more_than_one_folder(self):
        self.assertEqual(self.run_on("a", "b").returncode, 2)


if __name__ == "__main__":
    unittest.main()
