#include "RandomTexts.h"

QString TRandomTexts::Mixed(int longest)
{
    static const QString alphabet = QStringLiteral("یيىکكشر12۱۲١٢abABkK%_[]^-'\" \u200Cـآئ\u212A");
    QString text;
    const int length = 1 + Number(longest);
    for (int count = 0; count < length; ++count) {
        const int choice = Number(static_cast<int>(alphabet.size()) + 1);
        text += choice < alphabet.size() ? QString(alphabet.at(choice)) : QStringLiteral("😀");
    }
    return text;
}

QString TRandomTexts::Unicode(int longest)
{
    QString text;
    const int length = 1 + Number(longest);
    while (text.size() < length) {
        const auto code = static_cast<char32_t>(1 + Number(Number(4) == 0 ? 0x10FFFE : 0xFFFE));
        if (!QChar::isSurrogate(code))
            text += QString::fromUcs4(&code, 1);
    }
    return text;
}
