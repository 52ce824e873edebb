#pragma once

#include <functional>
#include <QShortcut>
#include <QString>

class QDialog;
class QFormLayout;
class QHBoxLayout;
class QVBoxLayout;
class TSmartButton_TRV;
class TSmartLabel_TRV;

/// What pages and cards are laid out of. Widgets belong to the parent that they are made in.
namespace FormParts {

/// A label beside its control; `&` in the caption marks the letter that leads to the control.
TSmartLabel_TRV* NewLabel(const QString& caption, QWidget* control);
/// Ends a row with a label and its control, named for assistive tools by the caption. `width` in pixels; 0
/// takes the room that is left.
void AddField(QHBoxLayout* row, const QString& caption, QWidget* control, int width);
/// A button of a bar, as wide as its caption.
TSmartButton_TRV* NewBarButton(QWidget* bar, const QString& name, const QString& caption);

/// The column of a card that begins with its heading on a band.
QVBoxLayout* NewCardColumn(QDialog* card, TSmartLabel_TRV* heading);
/// Puts a band with the heading into a column; returns the band's row.
QHBoxLayout* AddHeading(QVBoxLayout* column, TSmartLabel_TRV* heading);
/// The fields of a card, each beside its label.
QFormLayout* NewCardFields();
/// Ends a row with the buttons that save a card and close it; F2 and Ctrl+S save too. Returns the first.
TSmartButton_TRV* AddSaveButtons(QHBoxLayout* row, QDialog* card, const std::function<void()>& save);

/// Lets a key act wherever the focus is in a form; `action` is one of the form's methods or a function.
template <typename TForm, typename TAction> void OnKey(TForm* form, const QKeySequence& key, TAction action)
{
    auto* shortcut = new QShortcut(key, form, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, form, action);
}

} // namespace FormParts
