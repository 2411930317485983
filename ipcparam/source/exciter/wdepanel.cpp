#include "exciter/wdepanel.h"

#include "jobmodel/parameter.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QScrollArea>
#include <QScrollBar>

namespace TKE
{

namespace
{

constexpr int areaHeight = 220; // pixels
constexpr int groupsPerRow = 2;
constexpr int gridRowsOfList = 5; // grid rows that the row of a list takes
constexpr int areaStretch = 100;
constexpr int pageWidth = 720; // pixels, what a page of the host has room for at its least width

} // namespace

WDEPanel::WDEPanel(const QString& basePath, int channelCount, bool jobContext, bool vuhf, int panelKind,
                   QWidget* parent, const QString& className, bool readOnly)
    : ExciterPanel(basePath, vuhf, jobContext, panelKind, parent, className, readOnly), m_channelCount(channelCount)
{
}

void WDEPanel::BuildChannels(const char* noun, std::initializer_list<const Parameter*> parameters)
{
    if (m_channelCount < 1)
        return;
    const int row = Grid()->rowCount();
    const int columns = Grid()->columnCount();
    AddLine(Grid(), row, 0, 1, columns);

    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("WDE_CHANNELS"));
    area->setWidgetResizable(true);
    area->setMinimumHeight(areaHeight);
    Grid()->addWidget(area, row + 1, 0, 1, columns);
    Grid()->setRowStretch(row + 1, areaStretch); // room that is left is the channels'

    auto* content = new QWidget(area);
    auto* groups = new QGridLayout(content);
    groups->setContentsMargins(0, 0, 0, 0);
    const QString title = GetTranslation(QString::fromUtf8(noun));
    area->setAccessibleName(title);
    const QString basePath = GetBasePath();
    for (int channel = 1; channel <= m_channelCount; ++channel)
    {
        auto* box = new QGroupBox(title + u' ' + QString::number(channel), content);
        auto* grid = new QGridLayout(box);
        groups->addWidget(box, (channel - 1) / groupsPerRow, (channel - 1) % groupsPerRow);

        // Without rebasing: a value that the channel lacks is not looked for among those of another one.
        SetBasePath(basePath + QString::fromUtf8(noun) + QString::number(channel) + u'/');
        int channelRow = 0;
        for (const Parameter* parameter : parameters)
        {
            BuildRow(grid, m_channelValues.emplace_back(this), *parameter, channelRow, 0, RowSettings(false));
            channelRow += parameter->IsDoubleList() ? gridRowsOfList : 1;
        }
    }
    SetBasePath(basePath);
    area->setWidget(content);
    // Two groups side by side fit in, if the page of the host does; then only their number makes the user scroll.
    const int scrollBar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumWidth(qMin(content->sizeHint().width() + scrollBar + 2 * area->frameWidth(), pageWidth));
}

} // namespace TKE
