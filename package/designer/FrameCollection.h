#pragma once

#include "FrameWidget.h"

#include <memory>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <vector>

/// Everything that the package registers, as a plugin of form designers.
class TFrameCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit TFrameCollection(QObject* parent = nullptr);
    ~TFrameCollection() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<TFrameWidget>> widgets_;
};
