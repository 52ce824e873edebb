#pragma once

#include "ADOConnection.h"

#include <QPointer>

/// A statement without rows.
class ADO_EXPORT TADOCommand : public QObject
{
    Q_OBJECT

public:
    explicit TADOCommand(QObject* parent = nullptr);
    ~TADOCommand() override;

    void SetConnection(TADOConnection* connection); ///< not owned; null for none
    TADOConnection* Connection() const;

    QString CommandText;     ///< one T-SQL statement
    QVariantList Parameters; ///< values of the text's `?` marks

    /// Runs the text; returns the rows it wrote (-1 where the engine cannot tell).
    qint64 Execute();

private:
    QPointer<TADOConnection> connection_;
};
