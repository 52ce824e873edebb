#include "Utf8Text.h"

#include <cstring>
#include <QStringConverter>

namespace {

constexpr quint64 HighBits = 0x8080808080808080U;

bool IsContinuation(quint32 byte)
{
    return (byte & 0xC0U) == 0x80U;
}

/// Writes UTF-16 while it reads UTF-8. Persian letters, most of what is read here, are two bytes long; this
/// loop takes them in half the time of the general converter.
class TDecoder
{
public:
    TDecoder(const char* bytes, qsizetype count, char16_t* target)
        : next_(reinterpret_cast<const uchar*>(bytes)), end_(next_ + count), target_(target)
    {
    }

    /// One character behind the last one written; null when the bytes are no UTF-8.
    char16_t* Run()
    {
        while (next_ != end_) {
            if (*next_ < 0x80U)
                CopyAscii();
            else if (!DecodeCharacter())
                return nullptr;
        }
        return target_;
    }

private:
    void CopyAscii()
    {
        quint64 eight = 0;
        while (end_ - next_ >= 8) {
            std::memcpy(&eight, next_, sizeof eight);
            if ((eight & HighBits) != 0)
                break;
            for (int i = 0; i < 8; ++i)
                target_[i] = next_[i];
            next_ += 8;
            target_ += 8;
        }
        while (next_ != end_ && *next_ < 0x80U)
            *target_++ = *next_++;
    }

    bool DecodeCharacter()
    {
        const quint32 first = *next_;
        if (first >= 0xC2U && first < 0xE0U && Has(2)) {
            *target_++ = static_cast<char16_t>((first & 0x1FU) << 6U | Bits(1));
            next_ += 2;
            return true;
        }
        if (first >= 0xE0U && first < 0xF0U && Has(3))
            return Take((first & 0x0FU) << 12U | Bits(1) << 6U | Bits(2), 3, 0x800U);
        if (first >= 0xF0U && first < 0xF5U && Has(4))
            return Take((first & 0x07U) << 18U | Bits(1) << 12U | Bits(2) << 6U | Bits(3), 4, 0x10000U);
        return false;
    }

    bool Has(int count) const
    {
        if (end_ - next_ < count)
            return false;
        for (int i = 1; i < count; ++i) {
            if (!IsContinuation(next_[i]))
                return false;
        }
        return true;
    }

    quint32 Bits(int index) const { return next_[index] & 0x3FU; }

    /// A character of three or four bytes; one that would have fitted into fewer, or half a pair, is no
    /// UTF-8.
    bool Take(char32_t character, int length, char32_t smallest)
    {
        if (character < smallest || character > QChar::LastValidCodePoint || QChar::isSurrogate(character))
            return false;
        if (QChar::requiresSurrogates(character)) {
            *target_++ = QChar::highSurrogate(character);
            *target_++ = QChar::lowSurrogate(character);
        } else {
            *target_++ = static_cast<char16_t>(character);
        }
        next_ += length;
        return true;
    }

    const uchar* next_;
    const uchar* end_;
    char16_t* target_;
};

// The mark is converted to a character, and a character cut off at the end to a replacement.
QString TextOfDamagedUtf8(const char* bytes, qsizetype count)
{
    using enum QStringConverter::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Stateless | ConvertInitialBom);
    return decoder.decode(QByteArrayView(bytes, count));
}

} // namespace

QString TextOfUtf8(const char* bytes, qsizetype count)
{
    if (count == 0)
        return QString(QLatin1StringView(""));
    QString text(count, Qt::Uninitialized);
    auto* begin = reinterpret_cast<char16_t*>(text.data());
    const char16_t* end = TDecoder(bytes, count, begin).Run();
    if (end == nullptr)
        return TextOfDamagedUtf8(bytes, count);
    text.resize(end - begin);
    return text;
}

void AppendTextOfUtf8(const char* bytes, qsizetype count, std::u16string& buffer)
{
    const std::size_t before = buffer.size();
    buffer.resize(before + static_cast<std::size_t>(count));
    const char16_t* end = TDecoder(bytes, count, buffer.data() + before).Run();
    if (end != nullptr) {
        buffer.resize(static_cast<std::size_t>(end - buffer.data()));
        return;
    }
    const QString text = TextOfDamagedUtf8(bytes, count);
    buffer.resize(before);
    buffer.append(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}
