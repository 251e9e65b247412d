#include "tcomponent.h"

#include <exception>

#include "tapplication.h"
#include "tcanvas.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace {
thread_local int designTimeDepth = 0;
thread_local int formLoadingDepth = 0;
// Components made inside the open FormLoading scope, oldest first.
thread_local std::vector<TComponentCore *> pendingLoads;
} // namespace

DesignTimeCreation::DesignTimeCreation() { ++designTimeDepth; }
DesignTimeCreation::~DesignTimeCreation() { --designTimeDepth; }
bool DesignTimeCreation::Active() { return designTimeDepth > 0; }

FormLoading::FormLoading() { ++formLoadingDepth; }

FormLoading::~FormLoading()
{
    if (--formLoadingDepth > 0)
        return;
    // Loaded may free components still waiting: they take themselves off
    // the list as they go.
    // An error a component raises from Loaded cannot leave a destructor:
    // it is reported, and the other components still get Loaded.
    for (size_t i = 0; i < pendingLoads.size(); ++i) {
        if (TComponentCore *c = pendingLoads[i]) {
            pendingLoads[i] = nullptr;
            try {
                c->FinishLoading();
            } catch (const std::exception &e) {
                qWarning("Loaded: %s", e.what());
            }
        }
    }
    pendingLoads.clear();
}

bool FormLoading::Active() { return formLoadingDepth > 0; }

TComponentCore::TComponentCore(QObject *self)
    : FSelf(self), FDesigning(DesignTimeCreation::Active()), FLoading(FormLoading::Active())
{
    if (FLoading)
        pendingLoads.push_back(this);
}

TComponentCore::~TComponentCore()
{
    std::replace(pendingLoads.begin(), pendingLoads.end(), this, static_cast<TComponentCore *>(nullptr));
}

void TComponentCore::QueueLoaded()
{
    FLoading = true;
    QMetaObject::invokeMethod(FSelf, [this] { FinishLoading(); }, Qt::QueuedConnection);
}

void TComponentCore::FinishLoading()
{
    if (!FLoading)
        return;
    FLoading = false;
    Loaded();
}

TComponent::TComponent(QWidget *owner) : QWidget(owner), TComponentCore(this)
{
    setFixedSize(sizeHint());
    setVisible(IsDesigning());
}

void TComponent::SetDesigning(bool designing)
{
    TComponentCore::SetDesigning(designing);
    setVisible(designing && !FSubComponent);
}

void TComponent::SetSubComponent(bool sub)
{
    FSubComponent = sub;
    setVisible(IsDesigning() && !sub);
}

bool TComponent::event(QEvent *event)
{
    return GuardEvent(this, [&] { return QWidget::event(event); });
}

void TComponent::paintEvent(QPaintEvent *)
{
    if (!IsDesigning())
        return;
    QImage image(size(), QImage::Format_RGB32);
    TCanvas canvas(&image);
    canvas.Brush.SetColor(clBtnFace);
    canvas.FillRect(Rect(0, 0, width(), height()));
    TRect r = Rect(0, 0, width(), height());
    Frame3D(canvas, r, clBtnHighlight, clBtnShadow, 1);
    // The capitals of the class name without its prefix: TqcTimer -> T.
    QString name = QString::fromLatin1(metaObject()->className());
    if (name.startsWith(QLatin1String("Tqc")))
        name = name.mid(3);
    else if (name.startsWith(QLatin1String("Tq")))
        name = name.mid(2);
    QString initials;
    for (const QChar c : name)
        if (c.isUpper())
            initials += c;
    canvas.Brush.SetStyle(bsClear);
    canvas.Font.SetColor(clBtnText);
    canvas.Font.SetStyle(fsBold);
    canvas.DrawText(initials.left(3), r, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    QPainter(this).drawImage(0, 0, image);
}
