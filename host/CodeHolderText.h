#pragma once

#include "CodeLocks.h"

class THostClock;
struct TUserInfo;

namespace CodeHolderText {

/// In whose hands a code is and since when, for the middle of a sentence:
/// "از ساعت 10:32 در دست «سارا رضایی» روی رایانهٔ «PC-2»".
HOST_EXPORT QString Phrase(const TCodeHolder& holder, const TUserInfo& viewer, THostClock& clock);

} // namespace CodeHolderText
