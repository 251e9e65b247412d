#pragma once
// How a program is asked to show its first window, as a show number: 0
// hide, 1 normal, 2 minimised, 3 maximised, 4 normal without activation,
// 5 show, 6 minimise, 7 minimised without activation, 8 show without
// activation, 9 restore, 10 default (the values of TqcRunProg's
// Visiblility). A desktop passes it on the command line: "-iconic",
// "--minimized" or "-minimized" is 2, "--maximized" or "-maximized" is 3.
// TqcRunProg passes it in the environment variable QC_SHOW_COMMAND. The
// command line wins; TqShowApp applies it to its form when UseCmdShow is
// true.

#include <QStringList>

inline constexpr char kShowCommandVariable[] = "QC_SHOW_COMMAND";

// The show number of a program started with `arguments` and `variable` as
// the value of QC_SHOW_COMMAND; -1 when neither says one.
int StartupShowCommand(const QStringList &arguments, const QString &variable);

enum class TStartState { Normal, Minimized, Maximized };
// Minimised for 2, 6 and 7, maximised for 3, normal for anything else.
TStartState StartStateOf(int showCommand);
