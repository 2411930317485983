// Headers that nearly every source of this project includes.
#pragma once
#include <QtCore>
#if __has_include(<QtWidgets>)
#include <QtWidgets>
#endif
#include <functional>
#include <memory>
#include <optional>
#include <vector>
