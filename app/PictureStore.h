#pragma once

#include <QString>
#include <stdexcept>

class TADOConnection;

/// A picture is not taken; the message says why and what to do.
class EPictureRefused : public std::runtime_error
{
public:
    explicit EPictureRefused(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message)
    {
    }
    ~EPictureRefused() override;
    QString Message() const { return message_; }

private:
    QString message_;
};

/// Whose picture: the group that pictures of goods or of persons are, and the record's code.
struct TPictureOwner
{
    static constexpr int Goods = 1;
    static constexpr int Persons = 2;
    int Group = 0;
    int Item = 0;
};

/// Writes pictures of records, each with one statement.
class TPictureStore
{
public:
    static constexpr qint64 LargestFile = 10 << 20; ///< bytes

    /// `connection` must outlive the store.
    explicit TPictureStore(TADOConnection& connection) : connection_(&connection) {}

    /// Adds a JPEG file, its path and a copy of it. Throws EPictureRefused where the file cannot be taken.
    void Add(const TPictureOwner& owner, const QString& path);
    /// Puts a file in the place of a picture. Throws EPictureRefused also where that is gone meanwhile.
    void Replace(int id, const QString& path);
    /// Removes a picture; one that is gone already is left alone.
    void Remove(int id);

private:
    TADOConnection* connection_;
};
