#include "MnemonicText.h"

#include <QPainter>
#include <QTextLayout>

TMnemonicText TMnemonicText::Parse(const QString& marked)
{
    TMnemonicText result;
    for (qsizetype at = 0; at < marked.size(); ++at) {
        const bool isMark = marked[at] == u'&' && at + 1 < marked.size();
        if (isMark && marked[at + 1] != u'&' && result.Position < 0)
            result.Position = result.Text.size();
        if (isMark)
            ++at; // two marks stand for the sign itself
        result.Text += marked[at];
    }
    return result;
}

bool TMnemonicText::BreaksJoining() const
{
    return Position >= 0 && Text[Position].script() == QChar::Script_Arabic;
}

void TMnemonicText::PaintLine(QPainter& painter, const QRect& rect, int flags) const
{
    QTextOption option;
    option.setTextDirection((flags & Qt::TextForceRightToLeft) != 0 ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::Alignment(QFlag(flags & (Qt::AlignHorizontal_Mask | Qt::AlignAbsolute))));
    option.setWrapMode(QTextOption::NoWrap);
    QTextLayout layout(Text, painter.font(), painter.device());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(rect.width());
    layout.endLayout();

    const QFontMetricsF metrics(painter.font(), painter.device());
    qreal top = rect.top();
    if ((flags & Qt::AlignVCenter) != 0)
        top += (rect.height() - metrics.height()) / 2;
    else if ((flags & Qt::AlignBottom) != 0)
        top += rect.height() - metrics.height();
    const qreal first = line.cursorToX(static_cast<int>(Position));
    const qreal second = line.cursorToX(static_cast<int>(Position) + 1);
    const qreal thickness = qMax(1.0, metrics.lineWidth());
    const qreal y = qRound(top + metrics.ascent() + metrics.underlinePos());
    painter.fillRect(QRectF(rect.left() + qMin(first, second), y, qAbs(second - first), thickness),
                     painter.pen().color());
}
