#pragma once

#include <QtGlobal>

// The contract between the frames and the library "ExpenseCenter_TRV.dll", which holds the picker for expense
// centers and is loaded on demand. Frames find the function by its exported name; the library defines it.

/// The library's name as the host's loader takes it on every platform.
inline constexpr char16_t ExpenseCenterLibrary[] = u"ExpenseCenter_TRV.dll";
/// The exported name of the picker.
inline constexpr char ExpenseCenterFunction[] = "Select_ExpenseCenter";

/// Opens the list of expense centers, modally, and answers the picked code; 0 means that the user cancelled.
/// `selectionParameters` is zero-terminated UTF-16 text, never null, possibly empty; it stays the caller's
/// and is valid during the call only. No exception may leave the function.
extern "C" Q_DECL_EXPORT int Select_ExpenseCenter(const char16_t* selectionParameters);

/// The type by which a frame calls what it has found.
using TSelectExpenseCenter = int (*)(const char16_t* selectionParameters);
