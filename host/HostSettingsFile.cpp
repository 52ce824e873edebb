#include "HostSettingsFile.h"

#include <algorithm>
#include <QDir>
#include <QStandardPaths>

namespace {

constexpr QLatin1String recordKey("Host/SettingRecord");
constexpr QLatin1String lockOptionKey("Host/CodeLockOption");
constexpr QLatin1String tagLimitKey("Host/TagLimit");
constexpr int defaultTagLimit = 200;

QByteArray BytesOf(const TSettingRecord& record)
{
    return {reinterpret_cast<const char*>(record.Bytes.data()), TSettingRecord::Size};
}

} // namespace

THostSettings::THostSettings(const QString& fileName)
    : file_(std::make_unique<QSettings>(fileName.isEmpty() ? DefaultFileName() : fileName,
                                        QSettings::IniFormat))
{
    readable_ = file_->status() == QSettings::NoError;
    if (!readable_)
        file_ = std::make_unique<QSettings>(QString(), QSettings::IniFormat);
    Read();
}

QString THostSettings::DefaultFileName()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("settings.ini"));
}

void THostSettings::Read()
{
    const QByteArray bytes = QByteArray::fromHex(file_->value(recordKey).toByteArray());
    if (bytes.size() == TSettingRecord::Size)
        std::transform(bytes.begin(), bytes.end(), record_.Bytes.begin(),
                       [](char byte) { return static_cast<quint8>(byte); });
    options_.CodeLockOption = file_->value(lockOptionKey, 0).toInt();
}

void THostSettings::SetGregorian(bool gregorian)
{
    record_.SetGregorian(gregorian);
    SetValue(recordKey, QString::fromLatin1(BytesOf(record_).toHex()));
}

void THostSettings::SetIniOptions(const TIniOptions& options)
{
    options_ = options;
    SetValue(lockOptionKey, options.CodeLockOption);
}

int THostSettings::TagLimit() const
{
    bool isNumber = false;
    const int limit = Value(tagLimitKey).toInt(&isNumber);
    return isNumber && limit >= 0 ? limit : defaultTagLimit;
}

void THostSettings::SetTagLimit(int limit)
{
    SetValue(tagLimitKey, limit);
}

QVariant THostSettings::Value(const QString& key, const QVariant& otherwise) const
{
    return file_->value(key, otherwise);
}

void THostSettings::SetValue(const QString& key, const QVariant& value)
{
    file_->setValue(key, value);
    file_->sync();
}
