#pragma once
// A row of dot-matrix cells showing a caption, one cell a character, and the
// clock built on it.

#include "displays/qcelllabel.h"
#include "displays/qclocktime.h"
#include "displays/qdotsegment.h"
#include "services/tqctimer.h"

class TqcCustomDotLabel : public TqCustomCellLabel
{
    Q_OBJECT
public:
    explicit TqcCustomDotLabel(QWidget *parent = nullptr);

    TqcDotSegment *DotCell(int i) const { return static_cast<TqcDotSegment *>(Cell(i)); }

    // The dot shape and gap of every cell.
    qcDotStyle Style() const { return FStyle; }
    void SetStyle(qcDotStyle style);
    bool UseGap() const { return FUseGap; }
    void SetGap(bool gap);

protected:
    // Every character takes a cell of its own, points and colons too.
    void DoCaption() override;
    TControl *CreateCell(int index) override;
    QSize CellSize() const override;
    void ApplyColors(TControl *cell) override;

private:
    qcDotStyle FStyle = qcdsRound;
    bool FUseGap = true;
};

class TqcDotLabel : public TqcCustomDotLabel
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(TColor LitColor READ LitColor WRITE SetLitColor)
    Q_PROPERTY(int NumberOfChars READ NumberOfChars WRITE SetElements)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(int Size READ Size WRITE SetSize)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(TColor UnLitColor READ UnLitColor WRITE SetUnLitColor)

public:
    // Eleven cells; in the designer they read "QuovarSoft".
    explicit TqcDotLabel(QWidget *parent = nullptr);
};

class TqcDotClock : public TqcCustomDotLabel
{
    Q_OBJECT
    Q_PROPERTY(int Width READ Width WRITE SetWidth STORED false)
    Q_PROPERTY(int Height READ Height WRITE SetHeight STORED false)
    Q_PROPERTY(int Cursor READ Cursor WRITE SetCursor)
    Q_PROPERTY(QString Hint READ Hint WRITE SetHint)
    Q_PROPERTY(TqcTimer::TThreadPriority Priority READ Priority WRITE SetPriority)
    Q_PROPERTY(TColor Color READ Color WRITE SetColor)
    Q_PROPERTY(bool ShowSeconds READ ShowSeconds WRITE SetSek)
    Q_PROPERTY(bool ShowHint READ ShowHint WRITE SetShowHint)
    Q_PROPERTY(bool ParentShowHint READ ParentShowHint WRITE SetParentShowHint)
    Q_PROPERTY(bool Visible READ Visible WRITE SetVisible)
    Q_PROPERTY(bool ParentColor READ ParentColor WRITE SetParentColor)
    Q_PROPERTY(TColor LitColor READ LitColor WRITE SetLitColor)
    Q_PROPERTY(TColor UnLitColor READ UnLitColor WRITE SetUnLitColor)
    Q_PROPERTY(int Size READ Size WRITE SetSize)

public:
    // Five cells (hours, colon, minutes) on a timer ticking once a second.
    explicit TqcDotClock(QWidget *parent = nullptr);
    ~TqcDotClock() override;

    bool ShowSeconds() const { return FWork->ShowSeconds(); }
    // Eight cells with seconds, five without; rebuilt at once.
    void SetSek(bool show);
    TqcTimer::TThreadPriority Priority() const { return FWork->Timer()->Priority(); }
    void SetPriority(TqcTimer::TThreadPriority p) { FWork->Timer()->SetPriority(p); }

    TqcTimer *Timer() const { return FWork->Timer(); }
    void SetTimeSource(TClockWork::Source source) { FWork->SetSource(std::move(source)); }

signals:
    void OnTimeChange(QObject *Sender);

protected:
    virtual void DoChange();

private:
    std::unique_ptr<TClockWork> FWork;
};
