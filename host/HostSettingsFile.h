#pragma once

#include "HostExport.h"
#include "HostSettings.h"

#include <memory>
#include <QSettings>

/// Settings in an INI file of the user's configuration folder. Changes are written at once.
class HOST_EXPORT THostSettings : public ISettings
{
public:
    /// An empty name means DefaultFileName(). A file that does not exist yet is created at the first change.
    explicit THostSettings(const QString& fileName = {});

    /// The file in the user's configuration folder.
    static QString DefaultFileName();
    /// False where the file is there but cannot be read as settings. The defaults are in force then, and the
    /// file stays as it is: changes last as long as the program runs.
    bool IsReadable() const { return readable_; }

    const TSettingRecord& SettingRecord() const override { return record_; }
    const TIniOptions& IniOptions() const override { return options_; }
    const TUserInfo& UserInfo() const override { return user_; }

    void SetGregorian(bool gregorian);              ///< the calendar of dates on the screen
    void SetIniOptions(const TIniOptions& options); ///< written into the file
    /// Signs a user in, for this run of the program.
    void SetUserInfo(const TUserInfo& user) { user_ = user; }

    /// How many tags may be defined in the database; 200 unless the file says otherwise.
    int TagLimit() const;
    void SetTagLimit(int limit);

    /// What the application itself keeps (sizes of windows, states of lists).
    QVariant Value(const QString& key, const QVariant& otherwise = {}) const;
    void SetValue(const QString& key, const QVariant& value);

private:
    void Read();

    std::unique_ptr<QSettings> file_;
    bool readable_ = true;
    TSettingRecord record_;
    TIniOptions options_;
    TUserInfo user_;
};
