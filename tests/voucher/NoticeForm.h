#pragma once

#include "RecordingHost.h"
#include "TestCase.h"
#include "Typing.h"

#include <memory>
#include <QLabel>
#include <QMovie>
#include <QVBoxLayout>

/// A report with a bar at its top.
template <typename TBar> struct TNoticeForm
{
    TRecordingHost Host;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TBar* Bar = nullptr;
    QWidget* Report = nullptr;

    TNoticeForm()
    {
        auto* const layout = new QVBoxLayout(Form.get());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        Bar = new TBar(Form.get());
        Report = new QLabel(QStringLiteral("گزارش"), Form.get());
        layout->addWidget(Bar);
        layout->addWidget(Report, 1);
        Form->resize(1000, 300);
    }

    bool Show() const { return Typing::ShowActive(Form.get()); }
    static void Load() { QCoreApplication::processEvents(); }

    template <typename TButton> static void Click(TButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    }
};

/// Counts how often a widget is shown.
class TShowCounter : public QObject
{
    Q_OBJECT

public:
    explicit TShowCounter(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        Count += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }

    int Count = 0;
};

/// The names of the components of a form, in the order in which they were made.
inline QStringList ComponentNames(const QWidget& frame)
{
    QStringList names;
    for (const QObject* child : frame.children()) {
        if (const auto* widget = qobject_cast<const QWidget*>(child))
            names << widget->objectName() << ComponentNames(*widget);
    }
    return names;
}
