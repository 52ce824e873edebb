#pragma once

#include "PackageExport.h"

#include <QPushButton>

/// Button whose caption is a letter of a symbol font: "7" and "8" to the first and the last, "|" and "}" to
/// the one before and the one behind. Paints the symbol itself, so that the font need not be there; any other
/// caption is shown as it is.
class BASEFRAME_EXPORT TSymbolButton : public QPushButton
{
    Q_OBJECT

public:
    explicit TSymbolButton(QWidget* parent = nullptr);
    ~TSymbolButton() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
