#include "OpenPictureDialog.h"

#include <QFileDialog>
#include <QPointer>

namespace {

QStringList Descriptions(const QString& filter)
{
    const QStringList pieces = filter.split(u'|');
    QStringList descriptions;
    for (qsizetype index = 0; index < pieces.size(); index += 2)
        descriptions << pieces.at(index);
    return descriptions;
}

} // namespace

bool TOpenPictureDialog::Execute(QWidget* owner)
{
    const QPointer<QFileDialog> dialog = new QFileDialog(owner, QStringLiteral("انتخاب عکس"));
    // The toolkit's own window is right-to-left like the rest, and the same on all systems.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(Descriptions(Filter));
    dialog->setLabelText(QFileDialog::Accept, QStringLiteral("انتخاب"));
    dialog->setLabelText(QFileDialog::Reject, QStringLiteral("انصراف"));
    dialog->setLabelText(QFileDialog::LookIn, QStringLiteral("پوشه:"));
    dialog->setLabelText(QFileDialog::FileName, QStringLiteral("نام پرونده:"));
    dialog->setLabelText(QFileDialog::FileType, QStringLiteral("نوع پرونده:"));
    const bool chosen = dialog->exec() == QDialog::Accepted;
    if (dialog == nullptr)
        return false;
    if (chosen)
        FileName = dialog->selectedFiles().constFirst();
    delete dialog;
    return chosen;
}
