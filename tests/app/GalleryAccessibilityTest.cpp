#include "GalleryFixture.h"

#include "Select_AccountCode_UNT.h"
#include "tags_frame.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QSet>

namespace {

bool IsTabStop(const QWidget& widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

/// A control that is a part of another one and worked through it.
bool IsPart(const QWidget& widget, const TFrame& frame)
{
    for (const QWidget* parent = widget.parentWidget(); parent != &frame; parent = parent->parentWidget()) {
        if (IsTabStop(*parent))
            return true;
    }
    return false;
}

/// The button that opens the list of accounts is no stop of Tab, which is intended: "+" in the boxes beside
/// it does the same.
bool IsWorkedByPlus(const QWidget& widget)
{
    return widget.objectName() == QStringLiteral("Select_BTN") &&
           qobject_cast<TSelect_AccountCode*>(widget.parentWidget()) != nullptr;
}

/// What a user can work in a frame.
QWidgetList ControlsOf(const TFrame& frame)
{
    QWidgetList controls;
    for (QWidget* widget : frame.findChildren<QWidget*>()) {
        const bool isControl = IsTabStop(*widget) || qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (isControl && widget->isVisible() && widget->isEnabled() && !IsPart(*widget, frame) &&
            !IsWorkedByPlus(*widget))
            controls.append(widget);
    }
    return controls;
}

QString Named(const QWidget* widget)
{
    return widget == nullptr
               ? QStringLiteral("none")
               : QStringLiteral("%1 %2").arg(QString::fromLatin1(widget->metaObject()->className()),
                                             widget->objectName());
}

/// Whether a reader from right to left and from above meets the second one later.
bool ComesLater(const QWidget* first, const QWidget* second, const QWidget* frame)
{
    const QRect before(first->mapTo(frame, QPoint()), first->size());
    const QRect behind(second->mapTo(frame, QPoint()), second->size());
    const int common = qMin(before.bottom(), behind.bottom()) - qMax(before.top(), behind.top());
    const bool sameLine = common * 2 > qMin(before.height(), behind.height());
    return sameLine ? behind.center().x() < before.center().x() : behind.center().y() > before.center().y();
}

/// The letters that work with Alt in a frame, with what carries them.
QMap<QChar, QStringList> LettersOf(const TFrame& frame)
{
    QMap<QChar, QStringList> letters;
    const auto add = [&letters](const QString& text, const QWidget* widget) {
        const qsizetype mark = text.indexOf(u'&');
        if (mark >= 0 && mark + 1 < text.size() && text.at(mark + 1) != u'&' && widget->isVisible() &&
            widget->isEnabled())
            letters[text.at(mark + 1)].append(Named(widget));
    };
    for (const QLabel* label : frame.findChildren<QLabel*>())
        add(label->text(), label);
    for (const QAbstractButton* button : frame.findChildren<QAbstractButton*>())
        add(button->text(), button);
    return letters;
}

} // namespace

/// All frames of the package, as those meet them who see or reach a screen otherwise.
class GalleryAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        shop_ = std::make_unique<TGalleryFixture>();
        shop_->OpenGallery();
    }
    void cleanupTestCase() { shop_.reset(); }

    void tabReachesEveryControlInReadingOrder_data() { AddEntries(); }
    void tabReachesEveryControlInReadingOrder()
    {
        const TFrame* frame = Show();
        QVERIFY(frame != nullptr);
        const QWidgetList controls = ControlsOf(*frame);
        const QWidgetList visited = WalkByTab(*frame);
        for (QWidget* control : controls)
            QVERIFY2(visited.contains(control), qPrintable(Named(control)));
        QCOMPARE(shop_->Told, QStringList());
        // The suggestions stand above the editor, in which a tag is typed first.
        if (qobject_cast<const TTags*>(frame) != nullptr)
            return;
        for (qsizetype place = 1; place < visited.size(); ++place)
            QVERIFY2(
                ComesLater(visited.at(place - 1), visited.at(place), frame),
                qPrintable(Named(visited.at(place - 1)) + QStringLiteral(" → ") + Named(visited.at(place))));
        QCOMPARE(shop_->Told, QStringList());
    }

    void everyControlHasANameAndARole_data() { AddEntries(); }
    void everyControlHasANameAndARole()
    {
        const TFrame* frame = Show();
        QVERIFY(frame != nullptr);
        for (QWidget* control : ControlsOf(*frame)) {
            QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(reader != nullptr && reader->isValid(), qPrintable(Named(control)));
            QVERIFY2(!reader->text(QAccessible::Name).trimmed().isEmpty(), qPrintable(Named(control)));
            const QSet<QAccessible::Role> none = {QAccessible::NoRole, QAccessible::Client,
                                                  QAccessible::Pane};
            QVERIFY2(!none.contains(reader->role()), qPrintable(Named(control)));
            QVERIFY2(reader->state().focusable, qPrintable(Named(control)));
        }
    }

    void everyLetterWorksOnAPersianKeyboard_data() { AddEntries(); }
    void everyLetterWorksOnAPersianKeyboard()
    {
        const TFrame* frame = Show();
        QVERIFY(frame != nullptr);
        const QMap<QChar, QStringList> letters = LettersOf(*frame);
        for (auto letter = letters.begin(); letter != letters.end(); ++letter) {
            shop_->Gallery->List().setFocus();
            const QString before = StateOf(*frame);
            // A Persian layout sends the letter itself, and no Latin key beside it.
            QTest::sendKeyEvent(QTest::Click, shop_->Focus(), static_cast<Qt::Key>(letter.key().unicode()),
                                QString(letter.key()), Qt::AltModifier);
            QCoreApplication::processEvents();
            QVERIFY2(StateOf(*frame) != before,
                     qPrintable(QString(letter.key()) + u' ' + letter.value().join(u' ')));
        }
    }

private:
    void AddEntries()
    {
        QTest::addColumn<int>("index");
        const QVector<TGalleryEntry>& entries = shop_->Gallery->Entries();
        for (int index = 0; index < entries.size(); ++index)
            QTest::newRow(qPrintable(entries.at(index).ClassName)) << index;
    }
    /// The frame of the row with everything switched on.
    TFrame* Show()
    {
        QFETCH(int, index);
        shop_->Told.clear();
        shop_->Gallery->Choose(index);
        TFrame* frame = shop_->Gallery->ShownFrame();
        if (frame == nullptr)
            return nullptr;
        for (QAbstractButton* box : frame->findChildren<QAbstractButton*>()) {
            if (box->isCheckable() && box->objectName().endsWith(QStringLiteral("CHK")) &&
                !box->objectName().contains(QStringLiteral("Reverst")))
                box->setChecked(true);
        }
        shop_->Gallery->List().setFocus();
        TGalleryFixture::Settle();
        return frame;
    }
    QWidgetList WalkByTab(const TFrame& frame) const
    {
        constexpr int Most = 40;
        QWidgetList visited;
        for (int step = 0; step < Most; ++step) {
            shop_->Press(Qt::Key_Tab);
            QWidget* focus = shop_->Focus();
            if (!frame.isAncestorOf(focus))
                break;
            visited.append(focus);
        }
        return visited;
    }
    /// All that a letter can change.
    QString StateOf(const TFrame& frame) const
    {
        QString state = Named(shop_->Focus()) + shop_->Journal();
        for (const QAbstractButton* button : frame.findChildren<QAbstractButton*>())
            state += button->isChecked() ? u'1' : u'0';
        return state;
    }

    std::unique_ptr<TGalleryFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunFormTest<GalleryAccessibilityTest>(argc, argv);
}
#include "GalleryAccessibilityTest.moc"
