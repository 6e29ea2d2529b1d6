#pragma once

#include "low/Low.h"
#include "odd/Odd.h"

#include <QMessageBox>
#include <gdal_priv.h>
