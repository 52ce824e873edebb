#pragma once

#include <array>
#include <QString>
#include <QtGlobal>

/// The host's settings record. Its layout belongs to the host; frames know the calendar switch only, by its
/// place.
struct TSettingRecord
{
    static constexpr int Size = 64; ///< bytes of the record

    std::array<quint8, Size> Bytes{}; ///< the record as the host keeps it

    /// The value 4 of the twelfth byte: set means that dates are Gregorian, clear that they are Persian.
    bool IsGregorian() const { return (Bytes[CalendarByte] & CalendarBit) != 0; }
    void SetGregorian(bool gregorian)
    {
        const quint8 others = Bytes[CalendarByte] & static_cast<quint8>(~CalendarBit);
        Bytes[CalendarByte] = gregorian ? static_cast<quint8>(others | CalendarBit) : others;
    }

private:
    static constexpr size_t CalendarByte = 11;
    static constexpr quint8 CalendarBit = 4;
};

/// User options of the host's option file that change how frames behave.
struct TIniOptions
{
    /// The option that every call of the code lock passes along; its meaning is the host's.
    int CodeLockOption = 0;
};

/// The signed-in user.
struct TUserInfo
{
    int Code = 0; ///< 0 where nobody is signed in; statements then find nothing
    QString Name; ///< as messages call him
};

/// What the host knows about the installation and its user. Frames ask afresh each time and keep nothing.
class ISettings
{
public:
    virtual ~ISettings() = default;

    virtual const TSettingRecord& SettingRecord() const = 0; ///< settings of the installation
    virtual const TIniOptions& IniOptions() const = 0;       ///< options of the option file
    virtual const TUserInfo& UserInfo() const = 0;           ///< who is signed in now
};
