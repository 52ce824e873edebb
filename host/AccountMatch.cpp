#include "AccountMatch.h"

#include "AccountLevels.h"
#include "PersianText.h"

#include <QRegularExpression>

namespace {

/// The decimal text begins with what was typed, completed with zeros or not.
TAccountMatch::TRank RankOfCode(int code, int length, const QString& typed)
{
    const QString plain = QString::number(code);
    const QString completed = plain.rightJustified(length, u'0');
    if (typed == plain || typed == completed)
        return TAccountMatch::ExactCode;
    return plain.startsWith(typed) || completed.startsWith(typed) ? TAccountMatch::CodeBegins
                                                                  : TAccountMatch::None;
}

} // namespace

TAccountMatch::TAccountMatch(const QString& typed) : pattern_(typed.trimmed())
{
    static const QRegularExpression codes(QStringLiteral("^([0-9]+)(?:\\s*[-/ ]\\s*([0-9]*))?$"));
    // Without runs of blanks, whose number the pattern would take the square of.
    const auto match = codes.match(PersianText::AsciiDigits(typed).simplified());
    digits_ = match.captured(1);
    divided_ = match.hasMatch() && match.capturedStart(2) >= 0;
    assistant_ = match.captured(2);
}

TAccountMatch::TRank TAccountMatch::Of(const TAccountTree& tree, int place) const
{
    const TRank code = digits_.isEmpty() ? None : OfCode(tree, place);
    if (code != None)
        return code;
    return pattern_.FoundIn(tree.At(place).Name) ? NameHas : None;
}

TAccountMatch::TRank TAccountMatch::OfCode(const TAccountTree& tree, int place) const
{
    const TAccountNode& node = tree.At(place);
    switch (node.Level) {
    case TAccountNode::Total:
        if (divided_ && !assistant_.isEmpty())
            return None;
        return RankOfCode(node.Code, AccountLevels::TotalDigits, digits_);
    case TAccountNode::Assistant:
        return OfAssistantCode(tree, place);
    case TAccountNode::Group:
        break;
    }
    return None;
}

TAccountMatch::TRank TAccountMatch::OfAssistantCode(const TAccountTree& tree, int place) const
{
    const TAccountNode& node = tree.At(place);
    const int total = tree.At(node.Parent).Code;
    if (divided_) {
        if (assistant_.isEmpty() || RankOfCode(total, AccountLevels::TotalDigits, digits_) != ExactCode)
            return None;
        return RankOfCode(node.Code, AccountLevels::AssistantDigits, assistant_);
    }
    // Without a sign between them only completed codes can be told apart.
    if (digits_.size() <= AccountLevels::TotalDigits)
        return None;
    const QString whole = QStringLiteral("%1%2")
                              .arg(total, AccountLevels::TotalDigits, 10, QChar(u'0'))
                              .arg(node.Code, AccountLevels::AssistantDigits, 10, QChar(u'0'));
    if (whole == digits_)
        return ExactCode;
    return whole.startsWith(digits_) ? CodeBegins : None;
}
