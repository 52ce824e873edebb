#pragma once

#include "ADOQuery.h"
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

    QString Text(const QString& statement)
    {
        TADOQuery query;
        query.SetConnection(&Connection);
        query.SQL.SetText(statement);
        query.Open();
        return query.IsEmpty() ? QString() : query.Field(0)->AsString();
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
