#include "editors/framework/layer_list.h"

#include "resources/string_table.h"

QString LayerCaption(int row, const char* kind, const CChartString& name) {
    const QString caption = RowCaption(LoadChartString(ChartText::LayerRow), row, QString::fromUtf8(kind));
    return name.empty() ? caption : caption + QStringLiteral(" : (\"%1\")").arg(ValueAs<QString>(name));
}
