#pragma once

/// What every test may use, by names that stand alone: the library under test and the kit that the tests
/// share.

#include "support/Basics.h"
#include "support/Bytes.h"
#include "support/DumpTree.h"
#include "support/EventLog.h"
#include "support/Machine.h"
#include "support/Model.h"
#include "support/Scopes.h"
#include "support/Script.h"
#include "support/TypedCollection.h"
