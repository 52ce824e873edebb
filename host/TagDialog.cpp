#include "TagDialog.h"

#include "Balloon.h"
#include "ColorSwatches.h"
#include "Look.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"

#include <algorithm>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int balloonTime = 5000; // milliseconds

/// A box for a name, which stays as it is typed: its digits, direction marks and half spaces are part of it.
class TNameEdit : public QLineEdit
{
public:
    explicit TNameEdit(QWidget* parent) : QLineEdit(parent)
    {
        setMaxLength(TTagDefinition::LongestName);
        connect(this, &QLineEdit::textChanged, this, [this] { SetWrong(false); });
    }

    void SetWrong(bool wrong)
    {
        wrong_ = wrong;
        update();
    }

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QLineEdit::focusInEvent(event);
        // The name that is filled in is gone on with, not typed over.
        if (event->reason() != Qt::MouseFocusReason)
            end(false);
    }

    void paintEvent(QPaintEvent* event) override
    {
        QLineEdit::paintEvent(event);
        if (!wrong_)
            return;
        QPainter painter(this);
        Look::PaintRing(painter, rect(), Look::Color(Look::TRole::Wrong));
    }

private:
    bool wrong_ = false;
};

/// One line that a tag can have as its name.
QString AsName(const QString& text)
{
    QString name = text;
    std::replace_if(
        name.begin(), name.end(), [](QChar sign) { return sign.category() == QChar::Other_Control; }, u' ');
    name = name.trimmed();
    name.truncate(TTagDefinition::LongestName);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    return name.trimmed();
}

/// Blanks and direction marks alone are no name.
bool CanBeSeen(const QString& name)
{
    return std::any_of(name.begin(), name.end(),
                       [](QChar sign) { return !sign.isSpace() && sign.category() != QChar::Other_Format; });
}

TSmartLabel_TRV* Caption(const QString& text, QWidget* control, QWidget* parent)
{
    auto* label = new TSmartLabel_TRV(parent);
    label->SetCaption(text);
    label->SetFocusControl(control);
    return label;
}

} // namespace

TTagDialog::TTagDialog(const TTagDefinition& definition, const QString& name, QWidget* parent)
    : QDialog(parent), definition_(definition),
      isNameCut_(name.trimmed().size() > TTagDefinition::LongestName)
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("تعریف برچسب"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    Lay(AsName(name));
    FillSwatches();
}

TTagDialog::~TTagDialog() = default;

void TTagDialog::Lay(const QString& name)
{
    name_ = new TNameEdit(this);
    name_->setText(name);
    name_->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    swatches_ = new TColorSwatches(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::LineGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(Caption(QStringLiteral("&نام برچسب:"), name_, this));
    column->addWidget(name_);
    column->addSpacing(Look::Margin);
    column->addWidget(Caption(QStringLiteral("&رنگ:"), swatches_, this));
    column->addWidget(swatches_);
    column->addSpacing(Look::GroupGap);
    AddButtons(column);
    name_->setFocus();
    name_->end(false);
}

void TTagDialog::AddButtons(QVBoxLayout* column)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::Margin);
    row->addStretch(1);
    auto* save = new TSmartButton_TRV(this);
    save->setText(QStringLiteral("ثبت"));
    save->setDefault(true);
    save->OnClick = [this](QObject* /*Sender*/) { Save(); };
    auto* cancel = new TSmartButton_TRV(this);
    cancel->setText(QStringLiteral("انصراف"));
    cancel->setAutoDefault(false);
    cancel->OnClick = [this](QObject* /*Sender*/) { reject(); };
    for (TSmartButton_TRV* button : {save, cancel}) {
        button->setMinimumSize(88, Look::ControlHeight);
        row->addWidget(button);
    }
    column->addLayout(row);
}

void TTagDialog::FillSwatches()
{
    colors_ = definition_.Colors();
    QVector<QColor> shown;
    for (const TTagColor& color : qAsConst(colors_)) {
        const QColor read = Look::StringToColor(color.Notation);
        shown.append(read.isValid() ? read : QColor(Qt::gray));
    }
    swatches_->SetColors(shown);
    // A colour that tells the new tag apart from the others.
    const auto rarest = std::min_element(
        colors_.constBegin(), colors_.constEnd(),
        [](const TTagColor& first, const TTagColor& second) { return first.Uses < second.Uses; });
    swatches_->SetCurrent(static_cast<int>(rarest - colors_.constBegin()));
}

void TTagDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (isNameCut_)
        Balloon::Show(
            name_,
            QStringLiteral(
                "نام برچسب بیش از ۵۰ نویسه نمی‌شود؛ بقیهٔ آن بریده شد."),
            balloonTime);
}

int TTagDialog::Define()
{
    exec();
    Balloon::Hide();
    return result_;
}

void TTagDialog::Save()
{
    const QString name = AsName(name_->text());
    if (!CanBeSeen(name)) {
        Refuse(QStringLiteral("نام برچسب خالی است؛ آن را بنویسید."));
        return;
    }
    const int color = colors_.value(swatches_->Current()).Code;
    const int answer = definition_.Create(name, color);
    if (answer == TTagDefinition::NameIsTaken) {
        Refuse(QStringLiteral("برچسبی با همین نام هست؛ نام دیگری بنویسید."));
        return;
    }
    result_ = answer;
    accept();
}

void TTagDialog::Refuse(const QString& sentence)
{
    name_->setFocus();
    name_->selectAll();
    static_cast<TNameEdit*>(name_)->SetWrong(true);
    Balloon::Show(name_, sentence, balloonTime);
}
