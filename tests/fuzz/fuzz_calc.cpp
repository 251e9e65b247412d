// libFuzzer target: any bytes as a calculator line. Nothing may crash or
// trip a sanitizer; the result is one of the codes and the cursor stays on
// the stored line.
#include "services/mystd.h"

#include <QApplication>
#include <QMetaEnum>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

// The calculator is a component, and components are widgets: they need an
// application object (off-screen, no display).
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static TqCalc calc;
    const QString line = QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(size));
    // Registers carry over between inputs, as they do in use; a format
    // from the input's first bytes exercises the text side too.
    calc.SetCalcLine(line);
    const int result = calc.CalcResult();
    if (result < TqCalc::TqcOK || result > TqCalc::TqcOverFlow)
        std::abort();
    const int where = calc.WhereIsLastError();
    if (where < 1 || where > std::min<int>(calc.CalcLine().size() + 2, 255))
        std::abort();
    if (calc.CalcLine().size() > TqCalc::MaxLineLength)
        std::abort();
    calc.SetFormat(line.left(8));
    (void)calc.Number();
    if (calc.CalcResult() != result)
        std::abort();
    calc.SetFormat(QString());
    return 0;
}
