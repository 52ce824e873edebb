#pragma once

#include "DataSet.h"
#include "VoucherDraft.h"

#include <memory>
#include <QHash>
#include <vector>

/// The lines of a draft as a data set, so that a grid shows them.
class TVoucherLines : public TDataSet
{
    Q_OBJECT

public:
    /// `draft` must outlive the data set.
    explicit TVoucherLines(const TVoucherDraft& draft, QObject* parent = nullptr);
    ~TVoucherLines() override;

    /// The titles of the foreign currencies, by code.
    void SetCurrencyTitles(const QHash<int, QString>& titles) { currencyTitles_ = titles; }
    /// The lines have changed; `row` (from 0) becomes the current one, as far as there is such a row.
    void Announce(int row);
    /// The current line, counted from 0; -1 where there is none.
    int CurrentLine() const { return current_; }

    bool Active() const override { return true; }
    void Open() override {}
    void Close() override {}
    bool IsEmpty() override { return draft_->Count() == 0; }
    int RecordCount() override { return draft_->Count(); }
    int FieldCount() const override { return static_cast<int>(fields_.size()); }
    TField* Field(int index) override { return fields_.at(static_cast<size_t>(index)).get(); }
    TField* FindField(const QString& name) override;
    bool Bof() const override { return draft_->Count() == 0 || beforeFirst_; }
    bool Eof() const override { return draft_->Count() == 0 || behindLast_; }
    void First() override { MoveTo(0); }
    void Prior() override { MoveTo(current_ - 1); }
    void Next() override { MoveTo(current_ + 1); }
    void Last() override { MoveTo(draft_->Count() - 1); }
    int RecNo() const override { return current_ + 1; }
    void SetRecNo(int recNo) override { MoveTo(recNo - 1); }
    QVariant FieldValue(int index) const override { return ValueAt(current_, index); }
    QVariant ValueAt(int row, int index) const override;

private:
    void MoveTo(int row);

    const TVoucherDraft* draft_;
    QHash<int, QString> currencyTitles_;
    std::vector<std::unique_ptr<TField>> fields_;
    int current_ = -1;
    bool beforeFirst_ = false; // the last move wanted to go further than the first or the last line
    bool behindLast_ = false;
};
