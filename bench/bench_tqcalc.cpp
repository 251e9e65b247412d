// Evaluations per second of TqCalc over a corpus of varied lines, each
// parsed and evaluated afresh, beside muparser doing the same work (set the
// expression, evaluate once) on the lines both accept. Peak memory of each,
// measured in a child process of its own.
#include "benchutil.h"

#include "services/mystd.h"

#include <QApplication>

#include <muParser.h>

#include <random>
#include <string>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const char *const kRegisters = "ABCDFGHIJ";
const char *const kFunctions[] = {"sin", "cos", "exp", "sqrt", "abs", "ln"};

class Corpus
{
public:
    explicit Corpus(unsigned seed) : FRandom(seed) {}

    std::string line()
    {
        // Lines of a length people type (the calculator keeps 254 characters).
        std::string s;
        do
            s = expression(0);
        while (s.size() > 100);
        if (pick(10) == 0)
            s = "-" + s;   // a leading minus, at the start only
        switch (pick(15)) {   // about one line in five carries a fault
        case 0: s += "+"; break;                       // missing number
        case 1: s = "foo(" + s + ")"; break;           // unknown name
        case 2: s = "(" + s; break;                    // unclosed parenthesis
        default: break;
        }
        return s;
    }

private:
    int pick(int n) { return int(FRandom() % unsigned(n)); }

    std::string number()
    {
        std::string s = std::to_string(pick(1000));
        if (pick(3) == 0)
            s += "." + std::to_string(pick(100));
        return s;
    }

    std::string factor(int depth)
    {
        const int kind = depth > 2 ? pick(2) : pick(5);
        switch (kind) {
        case 0: return number();
        case 1: return std::string(1, kRegisters[pick(9)]);
        case 2: return "(" + expression(depth + 1) + ")";
        case 3:
        case 4: {
            const std::string f = kFunctions[pick(6)];
            // Keep arguments in the functions' domains and exp small.
            std::string arg = expression(depth + 1);
            if (f == "sqrt" || f == "ln")
                arg = "abs(" + arg + ")+1";
            else if (f == "exp")
                arg = number() + "/1000";
            if (f == "exp" && pick(2))
                arg = std::to_string(pick(5));
            return f + "(" + arg + ")";
        }
        }
        return number();
    }

    std::string term(int depth)
    {
        std::string s = factor(depth);
        for (int i = pick(3); i > 0 && depth < 2; --i) {
            const char op = "**/"[pick(3)];   // divisions by zero are among them
            s += op;
            s += factor(depth);
        }
        return s;
    }

    std::string expression(int depth)
    {
        std::string s = term(depth);
        for (int i = pick(depth == 0 ? 4 : 2); i > 0; --i) {
            s += pick(2) ? " + " : "-";
            s += term(depth);
        }
        return s;
    }

    std::mt19937 FRandom;
};

struct Result
{
    double rate = 0;
    long peakKb = 0;
    int accepted = 0;
};

// Runs `work` in a child process and returns what it measured.
template <class Work>
Result inChild(Work work)
{
    int fds[2];
    if (pipe(fds) != 0)
        return {};
    const pid_t pid = fork();
    if (pid == 0) {
        close(fds[0]);
        Result r = work();
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        r.peakKb = usage.ru_maxrss;
        (void)!write(fds[1], &r, sizeof r);
        _exit(0);
    }
    close(fds[1]);
    Result r;
    (void)!read(fds[0], &r, sizeof r);
    close(fds[0]);
    waitpid(pid, nullptr, 0);
    return r;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);   // components are widgets
    Corpus corpus(20261121);
    std::vector<std::string> lines;
    for (int i = 0; i < 1500; ++i)
        lines.push_back(corpus.line());

    // Which lines each engine accepts.
    std::vector<std::string> common;
    int calcAccepts = 0, muAccepts = 0;
    {
        TqCalc calc;
        calc.SetPushResult(false);
        mu::Parser parser;
        double vars[9];
        for (int i = 0; i < 9; ++i) {
            vars[i] = i + 1;
            calc.SetRegisterNum(i + 1, i + 1);
            parser.DefineVar(std::string(1, kRegisters[i]), &vars[i]);
        }
        for (const std::string &l : lines) {
            calc.SetCalcLine(QString::fromStdString(l));
            const bool calcOk = calc.CalcResult() == TqCalc::TqcOK;
            bool muOk = true;
            try {
                parser.SetExpr(l);
                (void)parser.Eval();
            } catch (const mu::Parser::exception_type &) {
                muOk = false;
            }
            calcAccepts += calcOk;
            muAccepts += muOk;
            if (calcOk && muOk)
                common.push_back(l);
        }
    }
    std::vector<QString> commonQ;
    for (const std::string &l : common)
        commonQ.push_back(QString::fromStdString(l));

    const Result ours = inChild([&] {
        TqCalc calc;
        calc.SetPushResult(false);
        for (int i = 0; i < 9; ++i)
            calc.SetRegisterNum(i + 1, i + 1);
        size_t k = 0;
        Result r;
        r.rate = ratePerSecond([&] { calc.SetCalcLine(commonQ[k++ % commonQ.size()]); }, 1500);
        return r;
    });
    const Result theirs = inChild([&] {
        mu::Parser parser;
        double vars[9];
        for (int i = 0; i < 9; ++i) {
            vars[i] = i + 1;
            parser.DefineVar(std::string(1, kRegisters[i]), &vars[i]);
        }
        size_t k = 0;
        volatile double sink = 0;
        Result r;
        r.rate = ratePerSecond([&] {
            parser.SetExpr(common[k++ % common.size()]);
            sink = parser.Eval();
        }, 1500);
        (void)sink;
        return r;
    });

    std::printf("corpus: %zu lines; TqCalc accepts %d, muparser %d, both %zu\n", lines.size(), calcAccepts,
                muAccepts, common.size());
    std::printf("%-12s %16s %14s\n", "", "evaluations/s", "peak RSS (MB)");
    std::printf("%-12s %16.0f %14.1f\n", "TqCalc", ours.rate, ours.peakKb / 1024.0);
    std::printf("%-12s %16.0f %14.1f\n", "muparser", theirs.rate, theirs.peakKb / 1024.0);
    std::printf("ratio TqCalc / muparser: %.2fx\n", theirs.rate > 0 ? ours.rate / theirs.rate : 0.0);
    return 0;
}
