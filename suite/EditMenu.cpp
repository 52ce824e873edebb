#include "EditMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>

QMenu* EditMenu::Create(QLineEdit* edit, const TEditCommands& commands)
{
    auto* menu = new QMenu(edit);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setLayoutDirection(Qt::RightToLeft);
    const auto add = [menu, edit](const QString& text, QKeySequence::StandardKey key, bool enabled,
                                  const std::function<void()>& run) {
        QAction* action = menu->addAction(text);
        action->setShortcut(QKeySequence(key));
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, edit, run);
    };
    const bool selected = commands.HasSelection || edit->hasSelectedText();
    add(QStringLiteral("&واگرد"), QKeySequence::Undo, commands.CanChange && commands.CanUndo, commands.Undo);
    add(QStringLiteral("&ازنو"), QKeySequence::Redo, commands.CanChange && commands.CanRedo, commands.Redo);
    menu->addSeparator();
    add(QStringLiteral("&بریدن"), QKeySequence::Cut, commands.CanChange && selected, commands.Cut);
    add(QStringLiteral("&رونوشت"), QKeySequence::Copy, selected, commands.Copy);
    add(QStringLiteral("&چسباندن"), QKeySequence::Paste,
        commands.CanChange && commands.CanPaste && !QGuiApplication::clipboard()->text().isEmpty(),
        commands.Paste);
    add(QStringLiteral("&حذف"), QKeySequence::Delete, commands.CanChange && selected, commands.Delete);
    menu->addSeparator();
    const std::function<void()> selectLine = [edit] { edit->selectAll(); };
    add(QStringLiteral("انتخاب &همه"), QKeySequence::SelectAll, commands.SelectAll || !edit->text().isEmpty(),
        commands.SelectAll ? commands.SelectAll : selectLine);
    return menu;
}
