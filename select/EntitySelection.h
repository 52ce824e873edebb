#pragma once

#include "EntityTypes.h"

#include <QStringView>

/// How codes of one kind of entity are looked up, picked and completed.
struct TEntitySelection
{
    enum class TPicker { None, EntityList, GroupList, ExpenseCenterLibrary };
    /// What the picker is given. The separators are the host's.
    enum class TArgument {
        None,            ///< an empty text
        Parameters,      ///< the box's selection parameters
        TypedCode,       ///< the box's text, "#LC#", the box's selection parameters
        OtherParameters, ///< the frame's OtherParams, "#OP#", the box's selection parameters
    };

    QStringView LookupFields; ///< as LookupDBs takes them; empty where the kind has no lookup
    LocateDBsOptions Locate = LocateDBsOptions::ldPersonals;
    TPicker Picker = TPicker::None;
    TSoftwarePart Part = TSoftwarePart::spNone;
    TArgument Argument = TArgument::None;
    bool All = false; ///< third argument of Select_Entity
    int ExitPad = 0;  ///< digits to which a code is completed when its box is left; 0 leaves it as typed
    int PickPad = 0;  ///< the same for a picked code
};

/// The row of a kind; ordinals outside of the enumeration have that of etNone.
const TEntitySelection& EntitySelection(TEntityType type);
