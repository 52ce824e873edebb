#pragma once

#include <functional>
#include <QDialog>

class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// The name of one category, to write or to change. An ASCII comma becomes the Persian one as it is typed.
class TCategoryCard : public QDialog
{
    Q_OBJECT

public:
    /// What the card asks for and says.
    struct TWords
    {
        QString Heading;
        QString Place; ///< where the category stands, in words
        QString Name;  ///< as it is now; empty for a new one
    };
    /// Writes the name into the database; throws ECategoryRefused where a rule forbids it.
    using TSave = std::function<void(const QString& name)>;

    TCategoryCard(const TWords& words, TSave save, QWidget* parent);
    ~TCategoryCard() override;

    TSmartEdit_TRV& Name() { return *name_; }
    /// Saves and closes; false where that was refused and told at the name.
    bool Save();
    /// Closes, after the user has been asked about a changed name.
    void reject() override;

private:
    void Lay(const TWords& words);

    QString loaded_;
    TSave save_;
    TSmartEdit_TRV* name_;
};
