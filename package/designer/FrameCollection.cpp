#include "FrameCollection.h"

#include "General_Search_UNT.h"

TFrameCollection::TFrameCollection(QObject* parent) : QObject(parent)
{
    TComponentRegistry registry;
    Register(registry);
    for (const TComponentRegistry::TComponent& component : registry.Components())
        widgets_.push_back(std::make_unique<TFrameWidget>(component));
}

TFrameCollection::~TFrameCollection() = default;

QList<QDesignerCustomWidgetInterface*> TFrameCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> widgets;
    for (const auto& widget : widgets_)
        widgets.append(widget.get());
    return widgets;
}
