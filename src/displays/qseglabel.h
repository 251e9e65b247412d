#pragma once
// A row of segment cells showing a caption, and the clock built on it.

#include "displays/qcelllabel.h"
#include "displays/qclocktime.h"
#include "displays/qsegment.h"
#include "services/tqctimer.h"

class TqCustomSegmentLabel : public TqCustomCellLabel
{
    Q_OBJECT
public:
    explicit TqCustomSegmentLabel(QWidget *parent = nullptr);

    TqSegment *Segment(int i) const { return static_cast<TqSegment *>(Cell(i)); }

protected:
    // Points and colons fold into the cell before them (except at the very
    // start); a cell already showing the right character is left alone, so
    // a point set by an earlier caption stays.
    void DoCaption() override;
    TControl *CreateCell(int index) override;
    QSize CellSize() const override { return QSize(19 * Size(), 29 * Size()); }
    void ApplyColors(TControl *cell) override;
};

class TqSegmentLabel : public TqCustomSegmentLabel
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
    explicit TqSegmentLabel(QWidget *parent = nullptr);
};

class TqSegmentClock : public TqCustomSegmentLabel
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
    // Four cells (hours and minutes) on a timer ticking once a second.
    explicit TqSegmentClock(QWidget *parent = nullptr);
    ~TqSegmentClock() override;

    bool ShowSeconds() const { return FWork->ShowSeconds(); }
    // Six cells with seconds, four without; rebuilt at once.
    void SetSek(bool show);
    TqcTimer::TThreadPriority Priority() const { return FWork->Timer()->Priority(); }
    void SetPriority(TqcTimer::TThreadPriority p) { FWork->Timer()->SetPriority(p); }

    // The owned timer, and where the time of day comes from.
    TqcTimer *Timer() const { return FWork->Timer(); }
    void SetTimeSource(TClockWork::Source source) { FWork->SetSource(std::move(source)); }

signals:
    void OnTimeChange(QObject *Sender);

protected:
    virtual void DoChange();

private:
    std::unique_ptr<TClockWork> FWork;
};
