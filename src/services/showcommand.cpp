#include "showcommand.h"

int StartupShowCommand(const QStringList &arguments, const QString &variable)
{
    const auto has = [&](std::initializer_list<const char *> names) {
        for (const char *n : names)
            if (arguments.contains(QLatin1String(n)))
                return true;
        return false;
    };
    if (has({"-iconic", "--minimized", "-minimized"}))
        return 2;
    if (has({"--maximized", "-maximized"}))
        return 3;
    bool ok = false;
    const int number = variable.trimmed().toInt(&ok);
    return ok && number >= 0 && number <= 10 ? number : -1;
}

TStartState StartStateOf(int showCommand)
{
    switch (showCommand) {
    case 2:
    case 6:
    case 7: return TStartState::Minimized;
    case 3: return TStartState::Maximized;
    default: return TStartState::Normal;
    }
}
