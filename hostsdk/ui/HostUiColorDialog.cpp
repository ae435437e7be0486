// The colour dialog.
#include "hostsdk/ui/HostUiColorDialog.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/ui/HostUiColorText.h"
#include "hostsdk/ui/HostUiCommandLine.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int kCell = 14;
constexpr int kHues = 24;
// Rows of one hue, top to bottom: the full colours of the five shades, then
// the half saturated ones.
constexpr int kShadeOrder[10] = {0, 2, 4, 6, 8, 1, 3, 5, 7, 9};

// The index table as cells: 240 hues and shades, then 1 to 9, then the six
// greys. Clicking picks, a double click also confirms.
class AciPalette : public QWidget
{
public:
  AciPalette(QWidget* parent, std::function<void(int)> picked, std::function<void()> confirmed)
      : QWidget(parent), m_picked(std::move(picked)), m_confirmed(std::move(confirmed))
  {
    setFixedSize(kHues * kCell + 1, 13 * kCell + 2 * 6 + 1);
  }

  void setSelected(int index)
  {
    m_selected = index;
    update();
  }

  // Where an index is drawn; empty for 0 and 256.
  static QRect cellOf(int index)
  {
    if (index >= 10 && index <= 249) {
      const int hue = (index - 10) / 10;
      int row = 0;
      while (kShadeOrder[row] != (index - 10) % 10)
        ++row;
      return QRect(hue * kCell, row * kCell, kCell, kCell);
    }
    const int big = kCell * 3 / 2;
    if (index >= 1 && index <= 9)
      return QRect((index - 1) * big, 10 * kCell + 6, big, big);
    if (index >= 250 && index <= 255)
      return QRect((index - 250) * big, 10 * kCell + 6 + big + 6, big, big);
    return QRect();
  }

  static int indexAt(const QPoint& p)
  {
    for (int i = 1; i <= 255; ++i)
      if (cellOf(i).contains(p))
        return i;
    return 0;
  }

protected:
  void paintEvent(QPaintEvent*) override
  {
    QPainter p(this);
    for (int i = 1; i <= 255; ++i) {
      const QRect r = cellOf(i);
      p.fillRect(r, QColor::fromRgb(OdCmEntityColor::lookUpRGB(i)));
      p.setPen(palette().color(QPalette::Mid));
      p.drawRect(r.adjusted(0, 0, -1, -1));
    }
    if (m_selected > 0) {
      p.setPen(QPen(palette().color(QPalette::Highlight), 2));
      p.drawRect(cellOf(m_selected).adjusted(1, 1, -1, -1));
    }
  }
  void mousePressEvent(QMouseEvent* e) override
  {
    if (const int i = indexAt(e->position().toPoint()))
      m_picked(i);
  }
  void mouseDoubleClickEvent(QMouseEvent* e) override
  {
    if (indexAt(e->position().toPoint()))
      m_confirmed();
  }

private:
  std::function<void(int)> m_picked;
  std::function<void()> m_confirmed;
  int m_selected = 0;
};

} // namespace

HostUiColorDialog::HostUiColorDialog(QWidget* parent, bool allowByLayerByBlock)
    : hostUiDialog(parent), m_allowByLayerByBlock(allowByLayerByBlock)
{
  setWindowTitle(tr("Select Color"));
  auto* layout = new QVBoxLayout(this);
  m_tabs = new QTabWidget(this);
  layout->addWidget(m_tabs);

  auto* indexPage = new QWidget(m_tabs);
  auto* indexLayout = new QVBoxLayout(indexPage);
  m_palette = new AciPalette(
      indexPage,
      [this](int i) {
        OdCmColor c;
        c.setColorIndex(std::int16_t(i));
        choose(c);
      },
      [this] { OnOK(); });
  indexLayout->addWidget(m_palette);
  auto* byButtons = new QHBoxLayout;
  for (auto method : {OdCmEntityColor::kByLayer, OdCmEntityColor::kByBlock}) {
    auto* b = new QPushButton(method == OdCmEntityColor::kByLayer ? tr("ByLayer") : tr("ByBlock"), indexPage);
    b->setAutoDefault(false);
    b->setEnabled(allowByLayerByBlock);
    connect(b, &QPushButton::clicked, this, [this, method] { choose(OdCmColor(method)); });
    byButtons->addWidget(b);
  }
  byButtons->addStretch();
  indexLayout->addLayout(byButtons);
  indexLayout->addStretch();
  m_tabs->addTab(indexPage, tr("Index Color"));

  m_picker = new QColorDialog(m_tabs);
  m_picker->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
  m_picker->setWindowFlags(Qt::Widget);
  connect(m_picker, &QColorDialog::currentColorChanged, this, [this](const QColor& q) {
    if (m_updating)
      return;
    OdCmColor c;
    c.setRGB(std::uint8_t(q.red()), std::uint8_t(q.green()), std::uint8_t(q.blue()));
    choose(c);
  });
  m_tabs->addTab(m_picker, tr("True Color"));

  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel(tr("Color:"), this));
  m_edit = new QLineEdit(this);
  connect(m_edit, &QLineEdit::editingFinished, this, [this] { takeEditedText(); });
  row->addWidget(m_edit, 1);
  m_preview = new QWidget(this);
  m_preview->setFixedSize(40, 20);
  m_preview->setAutoFillBackground(true);
  row->addWidget(m_preview);
  layout->addLayout(row);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { OnOK(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { OnCancel(); });
  layout->addWidget(buttons);
  choose(OdCmColor(allowByLayerByBlock ? OdCmEntityColor::kByLayer : OdCmEntityColor::kByACI));
}

void HostUiColorDialog::setColor(const OdCmColor& color)
{
  choose(color);
  m_tabs->setCurrentIndex(color.isByColor() ? 1 : 0);
}

void HostUiColorDialog::choose(const OdCmColor& color)
{
  if ((color.isByLayer() || color.isByBlock()) && !m_allowByLayerByBlock)
    return;
  m_color = color;
  m_updating = true;
  m_edit->setText(HostUiColorText::format(color).qstring());
  static_cast<AciPalette*>(m_palette)->setSelected(color.isByACI() ? color.colorIndex() : 0);
  QPalette pal = m_preview->palette();
  const bool plain = color.isByLayer() || color.isByBlock();
  pal.setColor(QPalette::Window, plain ? palette().color(QPalette::Window) : QColor::fromRgb(color.rgb()));
  m_preview->setPalette(pal);
  if (color.isByColor())
    m_picker->setCurrentColor(QColor::fromRgb(color.rgb()));
  m_updating = false;
}

void HostUiColorDialog::takeEditedText()
{
  OdCmColor c;
  if (HostUiColorText::parse(OdString(m_edit->text()), c, m_allowByLayerByBlock))
    choose(c);
}

void HostUiColorDialog::OnOK()
{
  OdCmColor c;
  if (!HostUiColorText::parse(OdString(m_edit->text()), c, m_allowByLayerByBlock)) {
    hostMessageBox(OdString::formatted("\"%s\" is no colour. Type ByLayer, ByBlock, an index from 1 to 255 "
                                       "or red,green,blue.",
                                       OdString(m_edit->text())),
                   OdString(windowTitle()), 48);
    m_edit->setFocus();
    return;
  }
  m_color = c;
  EndDialog(kIdOk);
}

bool hostUiSelectColor(QWidget* parent, OdCmColor& color, bool allowByLayerByBlock)
{
  if (!HostUiCommandLine::hasWindows()) {
    OdString answer;
    const OdString prompt = OdString::formatted(
        allowByLayerByBlock ? "Color (ByLayer, ByBlock, 1-255 or red,green,blue) <%s>: " : "Color (1-255 or red,green,blue) <%s>: ",
        HostUiColorText::format(color));
    if (!HostUiCommandLine::ask(prompt, answer))
      return false;
    if (answer.isEmpty())
      return true;
    if (!HostUiColorText::parse(answer, color, allowByLayerByBlock)) {
      HostUiCommandLine::say(OdString::formatted("\"%s\" is no colour; the colour stays as it was.", answer));
      return false;
    }
    return true;
  }
  HostUiColorDialog dialog(parent, allowByLayerByBlock);
  dialog.setColor(color);
  if (dialog.DoModal() != hostUiDialog::kIdOk)
    return false;
  color = dialog.color();
  return true;
}
