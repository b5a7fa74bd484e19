#include "cli/formula.h"

#include <array>

#include "engine/key_table.h"

namespace brinto {

namespace {

// The keys a formula can call, with how many values each takes: one from X, two from Y and X
// (in that order, as the key takes them), or none.
struct FormulaKey {
    FunctionId id;
    int values;
};
constexpr std::array kFormulaKeys = {
    FormulaKey{fid::ChangeSign, 1},  FormulaKey{fid::RoundToDisplay, 1}, FormulaKey{fid::IntegerPart, 1},
    FormulaKey{fid::Abs, 1},         FormulaKey{fid::SquareRoot, 1},     FormulaKey{fid::Square, 1},
    FormulaKey{fid::CubeRoot, 1},    FormulaKey{fid::Cube, 1},           FormulaKey{fid::Power, 2},
    FormulaKey{fid::Reciprocal, 1},  FormulaKey{fid::FractionalPart, 1}, FormulaKey{fid::Modulo, 2},
    FormulaKey{fid::Sin, 1},         FormulaKey{fid::Cos, 1},            FormulaKey{fid::Tan, 1},
    FormulaKey{fid::Asin, 1},        FormulaKey{fid::Acos, 1},           FormulaKey{fid::Atan, 1},
    FormulaKey{fid::Pi, 0},          FormulaKey{fid::Ln, 1},             FormulaKey{fid::Log10, 1},
    FormulaKey{fid::Exp, 1},         FormulaKey{fid::RadToDeg, 1},       FormulaKey{fid::DegToRad, 1},
    FormulaKey{fid::Random, 0},      FormulaKey{fid::Factorial, 1},      FormulaKey{fid::LogGamma, 1},
    FormulaKey{fid::Combinations, 2}, FormulaKey{fid::Permutations, 2},  FormulaKey{fid::XRoot, 2},
    FormulaKey{fid::Floor, 1},       FormulaKey{fid::Ceiling, 1},
};

std::optional<int> ValuesTaken(FunctionId id) {
    for (const FormulaKey& k : kFormulaKeys) {
        if (k.id == id) return k.values;
    }
    return std::nullopt;
}

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
constexpr bool IsOperator(char c) { return c == '+' || c == '-' || c == '*' || c == '/' || c == '^'; }

FunctionId OperatorKey(char c) {
    switch (c) {
        case '+': return fid::Add;
        case '-': return fid::Subtract;
        case '*': return fid::Multiply;
        case '/': return fid::Divide;
        default: return fid::Power;
    }
}

// A formula read into a tree: a number, or a key with the values it takes.
struct Node {
    FunctionId key = kNoKey;  // kNoKey: a number
    std::string_view number;
    int first = -1, second = -1;  // the values the key takes, as node indices
};

// Deep nesting is refused before the reader's own recursion could run out of stack, and long
// before the calculator's 20 stack levels and 40 pending operators would refuse the keys.
constexpr int kMostNesting = 64;

// Recursive descent: Sum := Product {(+|-) Product}; Product := Signed {(*|/) Signed};
// Signed := (-|+) Signed | Power; Power := Operand [^ Signed]; Operand := number | name [( list )]
// | ( Sum ).
class Reader {
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    std::vector<Node> nodes;
    std::optional<FormulaError> error;

    int Read() {
        const int root = Sum();
        Blanks();
        if (!error && m_at < m_text.size()) {
            const char c = m_text[m_at];
            const bool operand = IsDigit(c) || IsLetter(c) || c == '.' || c == '(';
            Fail(c == ')' ? "this ) closes no ("
                 : operand ? "an operator is missing here"
                           : "this character cannot stand in a formula");
        }
        return root;
    }

private:
    void Blanks() {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\t')) ++m_at;
    }
    char Next() {
        Blanks();
        return m_at < m_text.size() ? m_text[m_at] : '\0';
    }
    int Fail(std::string message) {
        if (!error) error = FormulaError{m_at, std::move(message)};
        return -1;
    }
    int Add(Node node) {
        nodes.push_back(node);
        return static_cast<int>(nodes.size()) - 1;
    }

    int Sum() {
        int left = Product();
        while (!error && (Next() == '+' || Next() == '-')) {
            const FunctionId key = OperatorKey(m_text[m_at++]);
            const int right = Product();
            left = Add({key, {}, left, right});
        }
        return left;
    }
    int Product() {
        int left = Signed();
        while (!error && (Next() == '*' || Next() == '/')) {
            const FunctionId key = OperatorKey(m_text[m_at++]);
            const int right = Signed();
            left = Add({key, {}, left, right});
        }
        return left;
    }
    int Signed() {
        if (error) return -1;
        if (++m_depth > kMostNesting) return Fail("the formula nests too deeply");
        int node = -1;
        if (Next() == '-' || Next() == '+') {
            const bool minus = m_text[m_at++] == '-';
            node = Signed();
            if (minus) node = Add({fid::ChangeSign, {}, node, -1});
        } else {
            node = Power();
        }
        --m_depth;
        return node;
    }
    int Power() {
        const int base = Operand();
        if (error || Next() != '^') return base;
        ++m_at;
        return Add({fid::Power, {}, base, Signed()});
    }
    int Operand() {
        const char c = Next();
        if (c == '(') {
            const std::size_t open = m_at++;
            const int inner = Sum();
            if (error) return -1;
            if (Next() != ')') {
                m_at = open;
                return Fail("this ( is not closed");
            }
            ++m_at;
            return inner;
        }
        if (IsDigit(c) || c == '.') return Number();
        if (IsLetter(c)) return Call();
        if (c == '\0') return Fail("a number, a name or ( is missing at the end");
        if (IsOperator(c) || c == ')' || c == ',') return Fail("a number, a name or ( is missing before this");
        return Fail("this character cannot stand in a formula");
    }
    int Number() {
        const std::size_t start = m_at;
        bool digits = false;
        const auto digitRun = [&] {
            for (; m_at < m_text.size() && IsDigit(m_text[m_at]); ++m_at) digits = true;
        };
        digitRun();
        if (m_at < m_text.size() && m_text[m_at] == '.') ++m_at;
        digitRun();
        if (!digits) return Fail("a point without digits is no number");
        if (m_at < m_text.size() && (m_text[m_at] == 'e' || m_text[m_at] == 'E')) {
            std::size_t at = m_at + 1;
            if (at < m_text.size() && (m_text[at] == '-' || m_text[at] == '+')) ++at;
            if (at < m_text.size() && IsDigit(m_text[at])) {
                while (at < m_text.size() && IsDigit(m_text[at])) ++at;
                m_at = at;
            }
        }
        return Add({kNoKey, m_text.substr(start, m_at - start)});
    }
    int Call() {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && (IsLetter(m_text[m_at]) || IsDigit(m_text[m_at]))) ++m_at;
        const std::string_view name = m_text.substr(start, m_at - start);
        const auto key = KeyByName(name);
        const auto values = key ? ValuesTaken(*key) : std::nullopt;
        if (!values) {
            m_at = start;
            return Fail(std::string(key ? "the key " : "no key is named ") + std::string(name) +
                        (key ? " takes no part in formulas" : ""));
        }
        std::vector<int> given;
        if (Next() == '(') {
            const std::size_t open = m_at++;
            if (Next() == ')') {
                ++m_at;
            } else {
                given.push_back(Sum());
                while (!error && Next() == ',') {
                    ++m_at;
                    given.push_back(Sum());
                }
                if (error) return -1;
                if (Next() != ')') {
                    m_at = open;
                    return Fail("this ( is not closed");
                }
                ++m_at;
            }
        }
        if (static_cast<int>(given.size()) != *values) {
            m_at = start;
            const char* const counts[] = {"no value", "one value in parentheses", "two values in parentheses"};
            return Fail(std::string(name) + " takes " + counts[*values]);
        }
        return Add({*key, {}, given.empty() ? -1 : given[0], given.size() < 2 ? -1 : given[1]});
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
};

// Types the tree as keys.
class Typist {
public:
    Typist(const std::vector<Node>& nodes, FormulaMethod method) : m_nodes(nodes), m_method(method) {}
    std::vector<FormulaStep> steps;

    void Value(int index) {
        const Node& n = m_nodes[static_cast<std::size_t>(index)];
        if (n.key == kNoKey) {
            steps.push_back({kNoKey, n.number});
        } else if (n.second >= 0) {
            // In RPN the two values are on the stack when the key comes; in the algebraic methods
            // the key stands between them.
            Operand(n.first);
            if (m_method == FormulaMethod::Infix) steps.push_back({n.key, {}});
            Operand(n.second);
            if (m_method == FormulaMethod::Postfix) steps.push_back({n.key, {}});
        } else {
            if (n.first >= 0) Operand(n.first);
            steps.push_back({n.key, {}});
        }
    }

    // A value that is itself an operation of two values is typed inside parentheses in the
    // algebraic methods, so that Simple's left-to-right order cannot split it.
    void Operand(int index) {
        const bool grouped = m_method == FormulaMethod::Infix && m_nodes[static_cast<std::size_t>(index)].second >= 0;
        if (grouped) steps.push_back({fid::OpenParen, {}});
        Value(index);
        if (grouped) steps.push_back({fid::CloseParen, {}});
    }

private:
    const std::vector<Node>& m_nodes;
    FormulaMethod m_method;
};

}  // namespace

bool LooksLikeFormula(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        // A comma parts a function's arguments, so it makes a formula only within parentheses:
        // "6,5" alone is a number written with the other radix, not a formula.
        if (c == '(' || c == ')') return true;
        if (IsOperator(c) && i > 0 && i + 1 < text.size()) return true;
    }
    return false;
}

FormulaKeys KeysOfFormula(std::string_view text, FormulaMethod method) {
    Reader reader(text);
    const int root = reader.Read();
    if (reader.error) return {{}, reader.error};
    Typist typist(reader.nodes, method);
    typist.Operand(root);
    return {std::move(typist.steps), std::nullopt};
}

}  // namespace brinto
