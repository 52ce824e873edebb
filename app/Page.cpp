#include "Page.h"

TPage::~TPage() = default;
