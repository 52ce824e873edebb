#pragma once

#include "NumberText.h"
#include "SmartEdit_TRV.h"

#include <functional>
#include <optional>
#include <QPalette>
#include <QTimer>

class QAction;
class QMenu;

/// What stands behind a smart edit: its properties, the number that is being typed, the events that are due.
/// In a text edit the toolkit's line does the editing and this cleans what goes in; in a number edit
/// TNumberText does it and the line only shows it.
struct TSmartEdit_TRV::TPrivate
{
    explicit TPrivate(TSmartEdit_TRV* owner);

    bool IsNumber() const { return editType != etString; }
    int Decimals() const { return editType == etCurrency && valueType != vtInt ? precision : 0; }
    bool IsBounded() const { return minValue < maxValue; }
    TNumberRules Rules() const;
    bool IsNegative() const;

    // SmartEditPrivate.cpp: from the text to the line and to the events
    QString CodeNumber(const QString& text) const;
    void SetText(const QString& text);
    void ShowNumber();
    void ShowSign();
    void LineChanged(const QString& line);
    void TextMayHaveChanged(bool byUser);
    void StartDelay();
    void StopDelay() const;
    void AnnounceValue() const;
    void AnnouncePendingValue() const;
    void Settle();
    void KeepBounds();
    void ClearError();
    void RefreshHint() const;
    void RefreshInputHints() const;

    // SmartEditInput.cpp: from the user to the text
    bool HandleKey(QKeyEvent* event);
    bool HandleNumberKey(QKeyEvent* event);
    bool Edit(const std::function<bool(TNumberText&)>& change);
    bool IsWithinReach(const TNumberText& candidate);
    void Type(const QString& text);
    QString CleanText(const QString& text) const;
    QString TypedText(const QString& text) const;
    QString FittingText(const QString& text) const;
    bool Paste(const QString& text);
    std::optional<QString> FindNumber(const QString& text) const;
    bool PasteNumber(const QString& text);
    bool PasteDigits(const QString& text) const;
    bool PasteText(const QString& text) const;
    void Copy() const;
    void Cut();
    void Undo();
    void Redo();
    void DeleteSelected();
    bool CanChange() const { return !edit->isReadOnly() && edit->isEnabled(); }
    QMenu* ContextMenu();

    // SmartEditCalculator.cpp
    void RefreshCalculatorButton();
    void OpenCalculator();
    QString TakeResult(const QString& result);

    TSmartEdit_TRV* edit;
    TEditType editType = etString;
    TValueType valueType = vtFloat;
    int maxLength = 0;
    bool digitsOnly = false;
    int precision = 0;
    int delayTime = 300;
    bool calculator = false;
    bool multiCurrency = false;
    bool reverseCurrency = false;
    double minValue = 0;
    double maxValue = 0;
    bool canTakeFocus = true;
    long double currencyRate = 0;
    QString currencyTitle;

    TNumberText number;
    QString toldText; // the text that OnChange last told
    std::unique_ptr<QTimer>
        delay;                // runs while a value of the user's waits to be announced; made when first used
    bool writingLine = false; // the line is being changed from here
    bool lineByUser = false;  // the line's change in progress is the user's
    bool typedSinceEnter = false;
    bool error = false;
    std::optional<QPalette> plainPalette; // while a negative number is shown in its own colour
    QAction* calculatorButton = nullptr;
};
