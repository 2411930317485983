// Headers that nearly every source of this project includes.
#pragma once
#include "../platform/application/qtcompat.h"
#include <QtCore>
#if __has_include(<QtWidgets>)
#include <QtWidgets>
#endif
#include <functional>
#include <memory>
#include <optional>
#include <vector>
