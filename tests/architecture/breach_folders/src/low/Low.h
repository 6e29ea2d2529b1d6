#pragma once

#include "high/High.h"
