#pragma once

#include "ComponentRegistry.h"

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// One registered frame as form designers see it.
class TFrameWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit TFrameWidget(const TComponentRegistry::TComponent& component);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;
    QWidget* createWidget(QWidget* parent) override;

private:
    TComponentRegistry::TComponent component_;
};
