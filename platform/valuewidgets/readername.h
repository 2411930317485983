#pragma once

class QLabel;
class QString;
class QWidget;

namespace TKE
{

/// Names for assistive technology, where what Qt tells by itself would leave an editor nameless: the editor behind a
/// focus proxy, tables and lists, and selections, which are called what they show and take their name from a label.
class ReaderName
{
public:
    /// For a widget that no label stands beside.
    static void Set(QWidget& widget, const QString& name);
    /// Makes `label` the widget's, or its focus proxy's.
    static void FromLabel(QLabel& label, QWidget& widget);
};

} // namespace TKE
