#pragma once
// Starts another program from a command line and, if asked, waits for it.
//
// The command line is split the way a shell user expects (spaces separate;
// '...' is literal; "..." keeps spaces and takes \" \\ \$ \` escapes; a
// backslash outside quotes escapes the next character), but no shell is
// run: nothing in it is expanded or executed besides the program itself,
// looked up on PATH when it has no '/'. The program gets the caller's
// environment and current directory and none of its open files besides
// standard input, output and error. Visiblility goes to the program as its
// show number in the environment variable QC_SHOW_COMMAND, which a program
// with a TqShowApp (UseCmdShow) follows; other programs choose their own
// first window state (services/showcommand.h).
//
// Waiting: a soft wait (HardWait false) runs the caller's event loop until
// the program ends, without polling, so the interface stays alive and may
// start other programs meanwhile; ReturnCode is then the program's exit
// code (128 + the signal number for a program a signal ended). ReturnCode is
// 259 while the program runs: a soft wait that the application's end cuts
// short leaves it at 259, and OnFinish still fires. A hard wait blocks and
// leaves ReturnCode at 0. A program started without waiting runs on by
// itself (it is reaped when it ends, without the component).
//
// A start that fails sets LastResultCode and SavedErrorCode (the system's
// errno, to look up with strerror or `errno -l`) and fires OnError:
//   ENOENT            qre_FileNotFound (qre_PathNotFound when a folder of
//                     the program's path is missing)
//   ENOTDIR           qre_PathNotFound
//   EACCES, EPERM     qre_networkerror (the group access denied is in)
//   ENOMEM, E2BIG,
//   EAGAIN            qre_MemoryError
//   EMFILE, ENFILE, EIO, ENOEXEC, EISDIR, ELOOP, ENAMETOOLONG, ETXTBSY
//                     qre_FileError
//   anything else     qre_UnknownError
// so a program that could not start is told apart from one that exits 255.

#include "host/tcomponent.h"

#include <QStringList>

// The words of a command line, as above; false for an unclosed quote.
bool SplitCommandLine(const QString &line, QStringList &words);

class TqcRunProg : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(TqcRunError LastResultCode READ LastResultCode WRITE IgnoreResult STORED false)
    Q_PROPERTY(QString CmdLine READ CmdLine WRITE SetCmdLine)
    Q_PROPERTY(TqcRunShow Visiblility READ Visiblility WRITE SetVisiblility)
    Q_PROPERTY(bool Wait READ Wait WRITE SetWait)
    Q_PROPERTY(int ReturnCode READ ReturnCode WRITE IgnoreCode STORED false)
    Q_PROPERTY(bool HardWait READ HardWait WRITE SetHardWait)

public:
    enum TqcRunShow {
        qrs_HIDE, qrs_SHOWNORMAL, qrs_SHOWMINIMIZED, qrs_SHOWMAXIMIZED, qrs_SHOWNOACTIVATE, qrs_SHOW,
        qrs_MINIMIZE, qrs_SHOWMINNOACTIVE, qrs_SHOWNA, qrs_RESTORE, qrs_SHOWDEFAULT
    };
    Q_ENUM(TqcRunShow)
    enum TqcRunError {
        qre_OK, qre_MemoryError, qre_FileNotFound, qre_PathNotFound, qre_TaskError, qre_WrongOpSystem,
        qre_WrongFileFormat, qre_networkerror, qre_FileError, qre_UnknownError
    };
    Q_ENUM(TqcRunError)

    explicit TqcRunProg(QWidget *owner = nullptr);

    TqcRunError LastResultCode() const { return FLastResult; }
    QString CmdLine() const { return FCmdLine; }
    void SetCmdLine(const QString &line) { FCmdLine = line; }
    TqcRunShow Visiblility() const { return FShow; }
    void SetVisiblility(TqcRunShow show) { FShow = show; }
    bool Wait() const { return FWait; }
    void SetWait(bool wait) { FWait = wait; }
    int ReturnCode() const { return FReturnCode; }
    bool HardWait() const { return FHardWait; }
    void SetHardWait(bool hard) { FHardWait = hard; }
    // The errno of the last failed start; 0 after one that started.
    int SavedErrorCode() const { return FSavedError; }

    // The result code of a start that failed with `error` (an errno) for
    // `program`.
    static TqcRunError ResultOf(int error, const QString &program);

    void Run() { RunThis(FCmdLine); }
    virtual void RunThis(const QString &commandLine);

signals:
    void OnError(QObject *Sender, TqcRunProg::TqcRunError Error, int RealErrorCode);
    void OnBeforeRun(QObject *Sender);
    void OnBeforeWait(QObject *Sender);
    void OnFinish(QObject *Sender);

private:
    void IgnoreResult(TqcRunError) {}
    void IgnoreCode(int) {}
    void softWait(int pid);

    TqcRunError FLastResult = qre_OK;
    QString FCmdLine;
    TqcRunShow FShow = qrs_SHOWNORMAL;
    bool FWait = true;
    int FReturnCode = 0;
    bool FHardWait = false;
    int FSavedError = 0;
};
