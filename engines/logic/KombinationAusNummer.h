#pragma once

#include "archive/logic/Kombination.h"

/// The combination that stands at place `nummer` when all 6 aus 49 are in lexicographic order: 1 is 1 2 3 4 5 6 and
/// 13,983,816 is 44 45 46 47 48 49. A number beyond these is taken as the nearer one of them.
Kombination KombinationAusNummer(std::int32_t nummer);
