#include "PopupMenu.h"

#include "Look.h"
#include "PersianText.h"

#include <algorithm>
#include <functional>
#include <QActionEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QResizeEvent>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QWidgetAction>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

bool IsTypedText(const QKeyEvent& event)
{
    constexpr QChar halfSpace(0x200C);
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & commands) != 0 || event.text().isEmpty())
        return false;
    const QChar typed = event.text().front();
    return typed.isPrint() || typed.isSurrogate() || typed == halfSpace;
}

QString WithoutLast(const QString& text)
{
    return text.chopped(text.back().isLowSurrogate() ? 2 : 1);
}

/// The widths of texts, from those of their words; the same words stand in many names. The texts
/// are those of actions, which outlive it.
class TWordWidths
{
public:
    explicit TWordWidths(const QFont& font) : metrics_(font) {}

    qreal Of(QStringView text)
    {
        qreal width = 0;
        qsizetype begin = 0;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (!text.at(i).isSpace() && !text.at(i).isDigit())
                continue;
            width += OfWord(text.mid(begin, i - begin)) + OfWord(text.mid(i, 1));
            begin = i + 1;
        }
        return width + OfWord(text.mid(begin));
    }

private:
    qreal OfWord(QStringView word)
    {
        if (word.isEmpty())
            return 0;
        const auto known = widths_.constFind(word);
        if (known != widths_.cend())
            return *known;
        return *widths_.insert(word, metrics_.horizontalAdvance(word.toString()));
    }

    QFontMetricsF metrics_;
    QHash<QStringView, qreal> widths_;
};

/// As high as the font, but so narrow that no item becomes wider by it, and without joining letters.
QFontMetrics NarrowMetrics(QFont font)
{
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setLetterSpacing(QFont::PercentageSpacing, 1);
    return QFontMetrics(font);
}

} // namespace

TPopupMenu::TPopupMenu(QWidget* parent) : QMenu(parent), narrow_(font())
{
    setLayoutDirection(Qt::RightToLeft);
}

TPopupMenu::~TPopupMenu() = default;

void TPopupMenu::SetImages(const QVector<QImage>& images)
{
    icons_.clear();
    icons_.reserve(images.size());
    for (const QImage& image : images)
        icons_.append(QIcon(QPixmap::fromImage(image)));
}

TMenuItem* TPopupMenu::AddItem(const QString& caption, int tag, int imageIndex)
{
    auto* item = new TMenuItem(caption, this, TMenuItem::THotKeys::Manual);
    item->Tag = tag;
    item->ImageIndex = imageIndex;
    item->setIcon(icons_.value(imageIndex));
    item->setIconVisibleInMenu(true);
    items_.append(item);
    addAction(item);
    return item;
}

void TPopupMenu::Clear()
{
    for (TMenuItem* item : qAsConst(items_)) {
        removeAction(item);
        item->deleteLater();
    }
    items_.clear();
}

TMenuItem* TPopupMenu::Item(int index) const
{
    if (index < 0 || index >= items_.size())
        throw std::out_of_range("The menu has no item " + std::to_string(index) + ".");
    return items_.at(index);
}

void TPopupMenu::Popup(const QPoint& screenPosition)
{
    // It would be an invisible window that takes the next key or click.
    if (items_.isEmpty())
        return;
    FindWidest();
    popup(screenPosition);
    widest_.clear();
    top_ = screenPosition.y();
    if (isCentred_)
        CentreAt(screenPosition.x());
}

/// The toolkit measures every item, and joining the letters of a thousand names takes as long as reading
/// them. The menu is as wide as its widest item, so only those that may be it are measured in their own font.
void TPopupMenu::FindWidest()
{
    constexpr qsizetype Candidates = 8;
    TWordWidths widths(font());
    QVector<std::pair<qreal, const QAction*>> items;
    for (const TMenuItem* item : qAsConst(items_)) {
        if (item->isVisible())
            items.append({widths.Of(item->text()), item});
    }
    const auto end = items.begin() + qMin(Candidates, items.size());
    std::partial_sort(items.begin(), end, items.end(), std::greater<>());
    for (auto item = items.begin(); item != end; ++item)
        widest_.insert(item->second);
    narrow_ = NarrowMetrics(font());
}

void TPopupMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const
{
    QMenu::initStyleOption(option, action);
    if (!widest_.isEmpty() && !widest_.contains(action) && !paintingActive())
        option->fontMetrics = narrow_;
}

void TPopupMenu::CentreAt(int x)
{
    const QRect room = screen()->availableGeometry();
    const int rightmost = qMax(room.left(), room.right() + 1 - width());
    move(qBound(room.left(), x - width() / 2, rightmost), y());
    right_ = geometry().right();
}

bool TPopupMenu::event(QEvent* event)
{
    if (event->type() != QEvent::Resize)
        return QMenu::event(event);
    // The toolkit would measure all items again; where they lie does not hang on the size of the menu.
    QStyleOption option;
    option.initFrom(this);
    QStyleHintReturnMask shape;
    if (style()->styleHint(QStyle::SH_Menu_Mask, &option, this, &shape) != 0)
        setMask(shape.region);
    resizeEvent(static_cast<QResizeEvent*>(event));
    return true;
}

void TPopupMenu::actionEvent(QActionEvent* event)
{
    // Each change would measure all items anew.
    if (!isBusy_ || event->type() != QEvent::ActionChanged)
        QMenu::actionEvent(event);
}

void TPopupMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    top_ = y();
    right_ = geometry().right();
}

void TPopupMenu::hideEvent(QHideEvent* event)
{
    QMenu::hideEvent(event);
    findText_.clear();
    if (findRow_ != nullptr)
        ShowMatches();
}

void TPopupMenu::keyPressEvent(QKeyEvent* event)
{
    if (EditFindText(*event))
        return;
    // The toolkit chooses the last item without scrolling to it.
    if (event->key() == Qt::Key_Up && activeAction() == nullptr && !items_.isEmpty() && findText_.isEmpty())
        setActiveAction(items_.constLast());
    else
        QMenu::keyPressEvent(event);
}

bool TPopupMenu::EditFindText(const QKeyEvent& event)
{
    const bool isEmpty = findText_.isEmpty();
    if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Escape) {
        const bool isEscape = event.key() == Qt::Key_Escape;
        if (!isEmpty)
            SetFindText(isEscape ? QString() : WithoutLast(findText_));
        return !(isEmpty && isEscape);
    }
    if (!IsTypedText(event) || (isEmpty && event.key() == Qt::Key_Space))
        return false;
    SetFindText(findText_ + event.text());
    return true;
}

void TPopupMenu::SetFindText(const QString& text)
{
    findText_ = text;
    if (findRow_ == nullptr)
        MakeFindRow();
    QAction* const first = ShowMatches();
    FitToItems(first);
}

void TPopupMenu::MakeFindRow()
{
    findLabel_ = new QLabel;
    findLabel_->setMargin(Look::Margin);
    findLabel_->setTextFormat(Qt::PlainText);
    findRow_ = new QWidgetAction(this);
    findRow_->setDefaultWidget(findLabel_); // owns the label from here on
    findRow_->setVisible(false);
    insertAction(actions().value(0), findRow_);
}

/// Answers the first item that matches, none where nothing has been typed.
QAction* TPopupMenu::ShowMatches()
{
    const QString sought = PersianText::Fold(findText_);
    QAction* first = nullptr;
    isBusy_ = true;
    for (TMenuItem* item : qAsConst(items_)) {
        const bool matches = sought.isEmpty() || PersianText::Fold(item->Caption()).contains(sought);
        item->setVisible(matches);
        if (matches && first == nullptr)
            first = item;
    }
    const QString typed = PersianText::Isolated(findText_);
    findLabel_->setText(first != nullptr ? QStringLiteral("جستجو: %1").arg(typed)
                                         : QStringLiteral("«%1» پیدا نشد").arg(typed));
    const QColor color = Look::Color(first != nullptr ? Look::TRole::SecondaryText : Look::TRole::Wrong);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, color);
    findLabel_->setPalette(colors);
    isBusy_ = false;
    // This one change is told to the menu, and with it all others.
    findRow_->setVisible(findText_.isEmpty());
    findRow_->setVisible(!findText_.isEmpty());
    return findText_.isEmpty() ? nullptr : first;
}

/// Opening an open menu measures it anew and scrolls it to its beginning.
void TPopupMenu::FitToItems(QAction* active)
{
    const int top = top_;
    const int right = right_;
    FindWidest();
    popup(QPoint(right - sizeHint().width() + 1, top));
    widest_.clear();
    move(right - width() + 1, y());
    setActiveAction(active);
}
