#pragma once

#include <QTranslator>

/// The toolkit's own texts in Persian: buttons of message boxes, context menus, standard dialogs.
class TStandardTexts : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
    bool isEmpty() const override { return false; }
};
