#pragma once

#include <QFile>
#include <QObject>

class TADOConnection;

/// Writes every statement of a connection into a file, as it is sent: the time, then the text as the program
/// wrote it.
class TStatementLog : public QObject
{
    Q_OBJECT

public:
    /// Writes behind what the file already holds. `error` gets the system's words where it cannot be opened.
    bool Open(const QString& fileName, QString& error);
    void Follow(TADOConnection& connection) const;

private:
    void Write(const QString& text);

    QFile file_;
};
