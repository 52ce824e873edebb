#pragma once

class TADOCommand;
class TADOConnection;
class TADOQuery;

/// The host's data module (`DM`). Everything it hands out belongs to the host and outlives the frames. Frames
/// never keep a result of the shared query over a return to the event loop, because every frame reuses it.
class IDataModule
{
public:
    virtual ~IDataModule() = default;

    /// The one connection of the host's database; every query and command of the frames is bound to it. Never
    /// null; frames do not open or close it.
    virtual TADOConnection* ADOConnection1() = 0;
    /// The general-purpose query, bound to ADOConnection1. Frames replace its text, open it and read it.
    /// Never null.
    virtual TADOQuery* SharedQuery() = 0;
    /// The general-purpose command, bound to ADOConnection1. Frames replace its text and execute it. Never
    /// null.
    virtual TADOCommand* SharedCommand() = 0;
};
