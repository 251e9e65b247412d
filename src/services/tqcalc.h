#pragma once
// The expression calculator with its result registers.

#include "host/tcomponent.h"

#include <QString>

#include <array>

// Evaluates one line of arithmetic whenever CalcLine is assigned. Results
// stack up in nine registers (A B C D F G H I J: E is the constant e).
class TqCalc : public TComponent
{
    Q_OBJECT
    Q_PROPERTY(bool PushResult READ PushResult WRITE SetPushResult)
    Q_PROPERTY(TqCalcResult CalcResult READ CalcResult WRITE IgnoreResult STORED false)
    Q_PROPERTY(int WhereIsLastError READ WhereIsLastError WRITE IgnoreInteger STORED false)
    Q_PROPERTY(QString CalcLine READ CalcLine WRITE SetCalcLine)
    Q_PROPERTY(QString FormatLine READ FormatLine WRITE SetFormat)
    Q_PROPERTY(QString Number READ Number WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterA READ RegisterA WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterB READ RegisterB WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterC READ RegisterC WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterD READ RegisterD WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterF READ RegisterF WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterG READ RegisterG WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterH READ RegisterH WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterI READ RegisterI WRITE IgnoreString STORED false)
    Q_PROPERTY(QString RegisterJ READ RegisterJ WRITE IgnoreString STORED false)
    Q_PROPERTY(double RegisterANum READ RegisterANum WRITE SetRegisterANum)
    Q_PROPERTY(double RegisterBNum READ RegisterBNum WRITE SetRegisterBNum)
    Q_PROPERTY(double RegisterCNum READ RegisterCNum WRITE SetRegisterCNum)
    Q_PROPERTY(double RegisterDNum READ RegisterDNum WRITE SetRegisterDNum)
    Q_PROPERTY(double RegisterFNum READ RegisterFNum WRITE SetRegisterFNum)
    Q_PROPERTY(double RegisterGNum READ RegisterGNum WRITE SetRegisterGNum)
    Q_PROPERTY(double RegisterHNum READ RegisterHNum WRITE SetRegisterHNum)
    Q_PROPERTY(double RegisterINum READ RegisterINum WRITE SetRegisterINum)
    Q_PROPERTY(double RegisterJNum READ RegisterJNum WRITE SetRegisterJNum)
    Q_PROPERTY(double NumberNum READ NumberNum WRITE IgnoreNumber STORED false)

public:
    enum TqCalcResult {
        TqcOK, TqcNumberMissing, TqcFunctionMissing, TqcLeftPar, TqcRightPar,
        TqcDivZero, TqcOverFlow, TqcFormatError
    };
    Q_ENUM(TqCalcResult)

    static constexpr int MaxLineLength = 254;
    static constexpr int RegisterCount = 9;

    explicit TqCalc(QWidget *owner = nullptr);

    bool PushResult() const { return FPushResult; }
    void SetPushResult(bool push) { FPushResult = push; }
    TqCalcResult CalcResult() const { return FCalcResult; }
    // The cursor (1-based) where the last evaluation stopped.
    quint8 WhereIsLastError() const { return FCursor; }

    // Assigning evaluates; reading gives the stored line (at most 254 characters).
    QString CalcLine() const { return FLine.left(FLine.size() - 1); }
    void SetCalcLine(const QString &line);

    // Turns numbers into text as the framework's Format; empty means "%e".
    QString FormatLine() const { return FFormat; }
    void SetFormat(const QString &format) { FFormat = format; }

    long double NumberNum() const { return FNumber; }
    QString Number();

    // Registers by number, A = 1 ... J = 9.
    QString GetReg(int n);
    long double RegisterNum(int n) const;
    void SetRegisterNum(int n, long double value);

    QString RegisterA() { return GetReg(1); }
    QString RegisterB() { return GetReg(2); }
    QString RegisterC() { return GetReg(3); }
    QString RegisterD() { return GetReg(4); }
    QString RegisterF() { return GetReg(5); }
    QString RegisterG() { return GetReg(6); }
    QString RegisterH() { return GetReg(7); }
    QString RegisterI() { return GetReg(8); }
    QString RegisterJ() { return GetReg(9); }
    long double RegisterANum() const { return FRegisters[0]; }
    long double RegisterBNum() const { return FRegisters[1]; }
    long double RegisterCNum() const { return FRegisters[2]; }
    long double RegisterDNum() const { return FRegisters[3]; }
    long double RegisterFNum() const { return FRegisters[4]; }
    long double RegisterGNum() const { return FRegisters[5]; }
    long double RegisterHNum() const { return FRegisters[6]; }
    long double RegisterINum() const { return FRegisters[7]; }
    long double RegisterJNum() const { return FRegisters[8]; }
    void SetRegisterANum(long double v) { FRegisters[0] = v; }
    void SetRegisterBNum(long double v) { FRegisters[1] = v; }
    void SetRegisterCNum(long double v) { FRegisters[2] = v; }
    void SetRegisterDNum(long double v) { FRegisters[3] = v; }
    void SetRegisterFNum(long double v) { FRegisters[4] = v; }
    void SetRegisterGNum(long double v) { FRegisters[5] = v; }
    void SetRegisterHNum(long double v) { FRegisters[6] = v; }
    void SetRegisterINum(long double v) { FRegisters[7] = v; }
    void SetRegisterJNum(long double v) { FRegisters[8] = v; }

signals:
    void OnError(QObject *Sender, const QString &CalcLine, quint8 Where);
    void OnOK(QObject *Sender);

private:
    // One method per level of the grammar, lowest precedence first.
    long double Udtryk();     // expression: terms joined by + and -
    long double Led();        // term: factors joined by *, / and ^
    long double Faktor();     // factor: number, (expression), name or function
    long double Tal();        // number
    long double Parantes();   // parenthesised argument
    QChar NaesteTegn();       // next character after spaces, not consumed
    int FuncNr();             // index of the name at the cursor

    // Past the stored line, the end mark again.
    QChar current() const { return FCursor <= FLine.size() ? FLine[FCursor - 1] : QChar(u'\r'); }
    void consume();
    void fail(TqCalcResult code) { FCalcResult = code; }
    long double applyName(int index, long double argument);
    QString format(long double value);

    // The write-accepting, write-ignoring properties show values in the
    // designer; what is written goes nowhere.
    void IgnoreResult(TqCalcResult) {}
    void IgnoreInteger(int) {}
    void IgnoreString(const QString &) {}
    void IgnoreNumber(double) {}

    bool FPushResult = true;
    TqCalcResult FCalcResult = TqcOK;
    quint8 FCursor = 1;
    QString FLine = QStringLiteral("0\r");   // the line and its end mark
    QString FFormat;
    long double FNumber = 0;
    std::array<long double, RegisterCount> FRegisters{};
};

