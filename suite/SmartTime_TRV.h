#pragma once

#include "SectionEdit.h"

/// One-line edit for a time of day, HH:MM, typed by section; the arrows and + and - step the section of the
/// caret.
class SUITE_EXPORT TSmartTime_TRV : public TSectionEdit
{
    Q_OBJECT

public:
    explicit TSmartTime_TRV(QWidget* parent = nullptr);
    ~TSmartTime_TRV() override;

    /// "14:30", with what is half typed completed; empty where there is no time of day.
    QString GetText() const { return ValueOf(Typed().Settled()); }

protected:
    QString ValueOf(const QString& text) const override;
    QString ProblemOf(const QString& text) const override;
    QString Pasted(const QString& text) const override;
    QString PasteRefusal() const override;
    bool HandleOwnKey(QKeyEvent* event) override;

private:
    void Step(int steps);
};
