#pragma once

#include "SuiteExport.h"

#include <QAbstractButton>

/// The line that opens and closes a TNxExpandPanel, by mouse and by keyboard: Space and Enter turn it over;
/// the arrow to the leading side of the text and Up close, the other and Down open. Assistive tools see a
/// button that is expanded or collapsed.
class SUITE_EXPORT TExpandHeader : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TExpandHeader(QWidget* parent = nullptr);
    ~TExpandHeader() override;

    bool IsExpanded() const { return expanded_; } ///< as it was last told by ShowState
    /// Only how the header looks and what it tells; the panel follows wanted().
    void ShowState(bool expanded, const QString& text);

    QSize sizeHint() const override;

Q_SIGNALS:
    void wanted(bool expanded); ///< the user wants the panel open or closed

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool expanded_ = false;
};
