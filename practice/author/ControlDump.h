#pragma once

#include <QByteArray>

class DescriptionSet;

/// Every window with its controls, and with each the position of a step that points at it, as JSON: an object
/// by window key of objects with "size" and "controls". A control has "name" and "type", "x" and "y" of its
/// middle, and "rows" or "tabs" with the positions of these; that of a map has "cells", the position of the
/// first and how far it is to the next. All as the items of lessons count them.
[[nodiscard]] QByteArray controlDump(const DescriptionSet &windows);
