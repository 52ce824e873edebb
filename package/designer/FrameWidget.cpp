#include "FrameWidget.h"

#include "DesignHost.h"

#include <QIcon>

TFrameWidget::TFrameWidget(const TComponentRegistry::TComponent& component) : component_(component)
{
}

QString TFrameWidget::name() const
{
    return component_.ClassName;
}

QString TFrameWidget::group() const
{
    return component_.Page;
}

QString TFrameWidget::toolTip() const
{
    return component_.Hint;
}

QString TFrameWidget::whatsThis() const
{
    return component_.Hint;
}

QString TFrameWidget::includeFile() const
{
    return component_.Header;
}

QIcon TFrameWidget::icon() const
{
    return {};
}

bool TFrameWidget::isContainer() const
{
    return false;
}

QString TFrameWidget::domXml() const
{
    return component_.DomXml;
}

QWidget* TFrameWidget::createWidget(QWidget* parent)
{
    if (!HasHost())
        static const TDesignHost host;
    return component_.Create(parent);
}
