#pragma once

#include "PackageExport.h"

#include <functional>
#include <QString>
#include <vector>

class QWidget;

/// Collects what a package offers to form designers. A unit's Register procedure fills it.
class BASEFRAME_EXPORT TComponentRegistry
{
public:
    struct TComponent
    {
        QString Page; ///< palette page
        QString ClassName;
        QString Header; ///< what a form that holds the component includes
        QString Hint;
        QString DomXml; ///< what a designer puts into a form at first: a <ui> element with one <widget>
        std::function<QWidget*(QWidget* parent)> Create;
    };

    void RegisterComponent(const TComponent& component) { components_.push_back(component); }
    const std::vector<TComponent>& Components() const { return components_; }

private:
    std::vector<TComponent> components_;
};
