#pragma once

#include "MessageDialog.h"
#include "Page.h"
#include "ShopFixture.h"

#include <memory>
#include <QPushButton>
#include <QTimer>

/// A shop with a user signed in, and a form that he has before him.
class TFormFixture : public TShopFixture
{
public:
    explicit TFormFixture(const TSampleSize& size = TSampleSize::Small()) : TShopFixture(size)
    {
        Settings.SetUserInfo({1, QStringLiteral("مدیر")});
        Messages.setInterval(10);
        QObject::connect(&Messages, &QTimer::timeout, [this] { AnswerMessage(); });
        Messages.start();
    }

    /// Shows a form in an active window, as the main window does.
    template <typename TForm> TForm& Open()
    {
        auto form = std::make_unique<TForm>(Host);
        TForm& opened = *form;
        Form = std::move(form);
        Form->resize(1050, 650);
        Form->show();
        Activate(Form.get());
        Form->Enter();
        return opened;
    }

    /// The control that has the keyboard. Without a window manager nobody gives it back after a message box.
    QWidget* Focus() const
    {
        if (QApplication::activeWindow() == nullptr && QApplication::activeModalWidget() == nullptr)
            Activate(Form.get());
        return QApplication::focusWidget();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QVERIFY(Focus() != nullptr);
        QTest::keyClick(Focus(), key, modifiers);
        QCoreApplication::processEvents();
    }
    void Type(const QString& text) const
    {
        for (const QChar character : text) {
            QVERIFY(Focus() != nullptr);
            QTest::sendKeyEvent(QTest::Click, Focus(), Qt::Key_unknown, QString(character), Qt::NoModifier);
            QCoreApplication::processEvents();
        }
    }
    void TypeAndEnter(const QString& text) const
    {
        Type(text);
        Press(Qt::Key_Return);
    }

    /// The captions of the buttons that answer the next message boxes; without one a box gets its first.
    QStringList Answers;
    QStringList Told; ///< the texts of the message boxes that have come

    std::unique_ptr<TPage> Form;
    QTimer Messages;

private:
    void AnswerMessage()
    {
        auto* box = qobject_cast<TMessageDialog*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isVisible())
            return;
        Told.append(box->Text());
        const QString wanted = Answers.isEmpty() ? QString() : Answers.takeFirst();
        const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (!button->isCheckable() && (wanted.isEmpty() || button->text() == wanted)) {
                button->click();
                return;
            }
        }
        box->reject();
    }
};

/// What tests of forms share: one shop for all tests of a program. At the beginning of each nothing has been
/// told and no answer waits; at its end the form is closed.
class TFormTest : public QObject
{
    Q_OBJECT

protected:
    virtual void Prepare() = 0; ///< runs before each test
    virtual void Finish() {}    ///< runs after each test

    std::unique_ptr<TFormFixture> shop_;

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TFormFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void init()
    {
        shop_->Told.clear();
        shop_->Answers.clear();
        Prepare();
    }
    void cleanup()
    {
        shop_->Connection.OnWillExecute = nullptr;
        shop_->Form.reset();
        Finish();
    }
};
