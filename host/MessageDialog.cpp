#include "MessageDialog.h"

#include "Look.h"
#include "MessageTypes.h"
#include "PersianText.h"

#include <algorithm>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace {

constexpr int textWidth = 360;
constexpr int signSize = 40;
constexpr int buttonWidth = 88;
constexpr int detailsHeight = 120;

struct TSign
{
    QString Letter;
    Look::TRole Role;
};

TSign SignOf(TMessageDialog::TKind kind)
{
    switch (kind) {
    case TMessageDialog::TKind::Warning:
        return {QStringLiteral("!"), Look::TRole::Warning};
    case TMessageDialog::TKind::Error:
        return {QStringLiteral("×"), Look::TRole::Wrong};
    case TMessageDialog::TKind::Question:
        return {QStringLiteral("؟"), Look::TRole::Accent};
    case TMessageDialog::TKind::Information:
        break;
    }
    return {QStringLiteral("i"), Look::TRole::Accent};
}

// A disc in the colour of the message's weight, drawn so that it follows the palette.
class TSignDisc : public QWidget
{
public:
    TSignDisc(TSign sign, QWidget* parent) : QWidget(parent), sign_(std::move(sign))
    {
        setFixedSize(signSize, signSize);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::Color(sign_.Role));
        painter.drawEllipse(rect().adjusted(1, 1, -1, -1));
        QFont font = Look::BoldFont();
        font.setPixelSize(signSize * 3 / 5);
        painter.setFont(font);
        painter.setPen(Look::IsDark() ? Look::ColorOf(Look::TRole::Base, true) : Qt::white);
        painter.drawText(rect(), Qt::AlignCenter, sign_.Letter);
    }

private:
    TSign sign_;
};

bool HasPersian(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.script() == QChar::Script_Arabic; });
}

/// Names and paths stand in guillemets; each keeps its own order, the slash that it begins with included.
QString WithIsolatedNames(const QString& text)
{
    static const QRegularExpression quoted(QStringLiteral("«([^«»\u2068]+)»"));
    return QString(text).replace(quoted, QStringLiteral("«\u2068\\1\u2069»"));
}

QLabel* MessageText(const QString& text, QWidget* parent)
{
    // The mark in front makes a paragraph that begins with a code or a Latin name right to left all the same;
    // a sentence without a Persian letter keeps its own order.
    const QString paragraph = HasPersian(text) ? PersianText::WithIsolatedCodes(WithIsolatedNames(text))
                                               : PersianText::Isolated(text);
    auto* label = new QLabel(QChar(0x200F) + paragraph, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

TMessageDialog::TMessageDialog(TKind kind, const QString& text, QVector<TDialogButton> buttons,
                               QWidget* parent)
    : QDialog(parent), text_(text), buttons_(std::move(buttons))
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::GroupGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    AddText(column, kind);
    AddButtons(column);
}

TMessageDialog::~TMessageDialog() = default;

void TMessageDialog::AddText(QVBoxLayout* column, TKind kind)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::GroupGap);
    row->addWidget(new TSignDisc(SignOf(kind), this), 0, Qt::AlignTop);
    row->addWidget(MessageText(text_, this), 1);
    column->addLayout(row);
}

void TMessageDialog::AddButtons(QVBoxLayout* column)
{
    buttonRow_ = new QHBoxLayout;
    buttonRow_->setSpacing(Look::Margin);
    buttonRow_->addStretch(1);
    for (const TDialogButton& description : qAsConst(buttons_)) {
        auto* button = new QPushButton(description.Caption, this);
        button->setMinimumSize(buttonWidth, Look::ControlHeight);
        connect(button, &QPushButton::clicked, this, [this, result = description.Result] { done(result); });
        buttonRow_->addWidget(button);
        pushButtons_.append(button);
    }
    column->addLayout(buttonRow_);
    SetDefaultButton(0);
}

void TMessageDialog::SetDefaultButton(int index)
{
    if (index < 0 || index >= pushButtons_.size())
        return;
    pushButtons_.at(index)->setDefault(true);
    pushButtons_.at(index)->setFocus();
}

void TMessageDialog::SetDetails(const QString& details)
{
    if (details.isEmpty() || details_ != nullptr)
        return;
    details_ = new QPlainTextEdit(this);
    details_->setLayoutDirection(Qt::LeftToRight);
    details_->setReadOnly(true);
    details_->setPlainText(details);
    details_->setFixedHeight(detailsHeight);
    details_->setFont(Look::SmallFont());
    details_->hide();
    static_cast<QVBoxLayout*>(layout())->addWidget(details_);
    auto* more = new QPushButton(QStringLiteral("جزئیات فنی"), this);
    more->setCheckable(true);
    more->setAutoDefault(false);
    more->setMinimumHeight(Look::ControlHeight);
    connect(more, &QPushButton::toggled, details_, &QWidget::setVisible);
    buttonRow_->insertWidget(0, more);
}

int TMessageDialog::Ask()
{
    const int answer = exec();
    return answer == QDialog::Rejected && !buttons_.isEmpty() ? buttons_.constLast().Result : answer;
}

TDialogButton TMessageDialog::OkButton()
{
    return {QStringLiteral("تأیید"), static_cast<int>(TMessageResult::mrOk)};
}

TDialogButton TMessageDialog::YesButton()
{
    return {QStringLiteral("بله"), static_cast<int>(TMessageResult::mrYes)};
}

TDialogButton TMessageDialog::NoButton()
{
    return {QStringLiteral("خیر"), static_cast<int>(TMessageResult::mrNo)};
}

TDialogButton TMessageDialog::CancelButton()
{
    return {QStringLiteral("انصراف"), static_cast<int>(TMessageResult::mrCancel)};
}
