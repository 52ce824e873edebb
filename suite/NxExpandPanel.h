#pragma once

#include "NotifyEvent.h"
#include "SuiteExport.h"

#include <QPointer>
#include <QWidget>

class TExpandHeader;

/// A panel with a header line that opens and closes a part of it. What the panel holds stands below the
/// header; its Body is shown only while the panel is expanded, the rest always.
class SUITE_EXPORT TNxExpandPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString CollapsedText READ CollapsedText WRITE SetCollapsedText)
    Q_PROPERTY(QString ExpandedText READ ExpandedText WRITE SetExpandedText)
    Q_PROPERTY(bool Expanded READ Expanded WRITE SetExpanded NOTIFY expandedChanged)

public:
    explicit TNxExpandPanel(QWidget* parent = nullptr);
    ~TNxExpandPanel() override;

    QString CollapsedText() const { return collapsedText_; } ///< beside the arrow while the panel is closed
    void SetCollapsedText(const QString& text);              ///< of the header while the panel is closed
    QString ExpandedText() const { return expandedText_; }
    void SetExpandedText(const QString& text);  ///< of the header while the panel is open
    bool Expanded() const { return expanded_; } ///< whether the body is shown
    /// Closed at first. The focus goes from a part that disappears to the header.
    void SetExpanded(bool expanded);
    QWidget* Body() const { return body_; }
    void SetBody(QWidget* body);                      ///< a widget inside the panel; null for none
    TExpandHeader* Header() const { return header_; } ///< never null

    TNotifyEvent OnExpandedChange; ///< by the user or by code

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void expandedChanged(bool expanded); ///< with OnExpandedChange

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowState();

    TExpandHeader* header_;
    QPointer<QWidget> body_;
    QString collapsedText_;
    QString expandedText_;
    bool expanded_ = false;
};
