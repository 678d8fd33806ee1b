#include "gallery/GalleryForm.h"

#include "gallery/TextKeys.h"

#include "loc/Localize.h"
#include "mui/LabelWrapper.h"
#include "mui/MuButton.h"
#include "mui/MuCheck.h"
#include "mui/MuChoice.h"
#include "mui/MuFrame.h"
#include "mui/MuImage.h"
#include "mui/MuLayout.h"
#include "mui/MuLine.h"
#include "mui/MuSlider.h"
#include "mui/MuSpacer.h"
#include "mui/MuStatic.h"
#include "mui/MuText.h"
#include "mui/Mui.h"

#include <cstring>
#include <vector>

namespace gallery {

namespace {

using namespace mui;

// Widths and heights in units, as forms give them.
constexpr int formWidth = 1400;
constexpr int sliderLength = 160;
constexpr int pictureSide = 64;

// Where the form's own link points.
constexpr const char* messageLink = "app://gallery/message";

// A titled frame around a column, which it returns.
MuLayout* section(MuContainer* parent, const char* name, const char* title) {
  MuFrame* frame = MuFrame::create(parent, name, title, MuFrame::Titled);
  return MuLayout::create(frame, "column", MuLayout::Vertical);
}

// A row of controls at their own widths: a stretching spacer ends it.
MuLayout* row(MuContainer* parent, const char* name) {
  return MuLayout::create(parent, name, MuLayout::Horizontal);
}

void endRow(MuLayout* layout) {
  layout->setChildLayout(MuSpacer::create(layout, 0, 0), MuLayout::Weighted, 1);
}

void buildButtons(MuContainer* parent) {
  MuLayout* column = section(parent, "buttons", XN_TEXT(textkey::gallery_frame_buttons));
  // Two buttons a row leave room for the longer labels of other languages.
  MuLayout* plain = row(column, "plain");
  MuButton::create(plain, "apply", XN_TEXT(textkey::gallery_button_apply));
  MuButton::create(plain, "refresh", XN_TEXT(textkey::gallery_button_refresh));
  endRow(plain);

  MuLayout* states = row(column, "states");
  MuButton::create(states, "disabled", XN_TEXT(textkey::gallery_button_disabled))
      ->setEnabled(false);
  MuButton::create(states, "add", XN_TEXT(textkey::gallery_button_add), MuButton::Normal,
                   MuButton::DropDown);
  endRow(states);

  MuLayout* frames = row(column, "frames");
  MuButton::create(frames, "flat", XN_TEXT(textkey::gallery_button_flat), MuButton::Normal,
                   MuButton::Flat);
  MuButton::create(frames, "hot", XN_TEXT(textkey::gallery_button_hot), MuButton::Normal,
                   MuButton::HotFrame);
  endRow(frames);

  MuLayout* images = row(column, "images");
  MuButton::create(images, "accept", XN_TEXT(textkey::gallery_button_accept))
      ->setImage("accept", nullptr, MuButton::ImageNormal);
  MuButton::create(images, "custom", nullptr, MuButton::Custom)
      ->setImage("group", nullptr, MuButton::ImageNormal);
  endRow(images);

  MuButton::create(column, "help", XN_TEXT(textkey::gallery_button_help), MuButton::Hyperlink, 0,
                   MuButton::AlignLeft);
}

void buildChecks(MuContainer* parent) {
  MuLayout* column = section(parent, "checks", XN_TEXT(textkey::gallery_frame_checks));
  MuCheck::create(column, "view", XN_TEXT(textkey::gallery_check_view))->setValue(true);
  MuCheck::create(column, "input", XN_TEXT(textkey::gallery_check_input));
  MuCheck::create(column, "mixed", XN_TEXT(textkey::gallery_check_mixed))->setIndeterminate();
  MuCheck* locked = MuCheck::create(column, "locked", XN_TEXT(textkey::gallery_check_locked));
  locked->setValue(true);
  locked->setLocked(true);

  MuCheck* sso =
      MuCheck::create(column, "sso", XN_TEXT(textkey::gallery_radio_sso), MuCheck::Radio);
  sso->setValue(true);
  MuCheck::create(column, "system", XN_TEXT(textkey::gallery_radio_system), MuCheck::Radio, sso);
  MuCheck::create(column, "both", XN_TEXT(textkey::gallery_radio_both), MuCheck::Radio, sso)
      ->setEnabled(false);

  MuCheck::create(column, "files", XN_TEXT(textkey::gallery_check_files), MuCheck::Normal, nullptr,
                  "check");
  MuCheck::create(column, "printing", XN_TEXT(textkey::gallery_check_printing), MuCheck::Normal,
                  nullptr, "check")
      ->setValue(true);
  MuCheck::create(column, "chat", XN_TEXT(textkey::gallery_check_chat), MuCheck::Normal, nullptr,
                  "check")
      ->setIndeterminate();
}

void buildText(MuContainer* parent, MuEdit::Filter* percent) {
  MuLayout* column = section(parent, "text", XN_TEXT(textkey::gallery_frame_text));
  std::vector<MuElement*> captioned;

  MuEdit* name = MuEdit::create(column, "name", XN_TEXT(textkey::gallery_edit_name));
  name->setText(XN_TEXT(textkey::gallery_edit_name_value));
  captioned.push_back(name);
  MuEdit* password =
      MuEdit::create(column, "password", XN_TEXT(textkey::gallery_edit_password), MuEdit::Password);
  // Shown as dots only: the gallery's stand-in for a secret.
  password->setText("gallery");
  captioned.push_back(password);
  MuEdit* numbers = MuEdit::create(column, "percent", XN_TEXT(textkey::gallery_edit_percent));
  numbers->setFilter(percent);
  numbers->setCue(XN_TEXT(textkey::gallery_edit_percent_cue));
  captioned.push_back(numbers);

  MuChoice* level = MuChoice::create(column, "level", XN_TEXT(textkey::gallery_choice_level));
  level->addItem(1, XN_TEXT(textkey::gallery_choice_full));
  level->addItem(2, XN_TEXT(textkey::gallery_choice_view));
  level->addItem(3, XN_TEXT(textkey::gallery_choice_none));
  level->setValue(2);
  captioned.push_back(level);
  MuChoice* group = MuChoice::create(column, "group", XN_TEXT(textkey::gallery_choice_group),
                                     MuChoice::Editable | MuChoice::AutoComplete);
  group->addItem(1, XN_TEXT(textkey::gallery_choice_group_value));
  group->setText(XN_TEXT(textkey::gallery_choice_group_value));
  captioned.push_back(group);

  MuEdit* notes =
      MuEdit::create(column, "notes", XN_TEXT(textkey::gallery_edit_notes), MuEdit::Multiline);
  notes->setText(XN_TEXT(textkey::gallery_edit_notes_value));
  notes->setMinHeight(notes->heightForRows(3));
  captioned.push_back(notes);
  MuEdit* disabled = MuEdit::create(column, "disabled", XN_TEXT(textkey::gallery_edit_disabled));
  disabled->setText(XN_TEXT(textkey::gallery_edit_disabled_value));
  disabled->setEnabled(false);
  captioned.push_back(disabled);

  LabelWrapper::alignCaptions(captioned);
}

void buildSliders(MuContainer* parent) {
  MuLayout* column = section(parent, "sliders", XN_TEXT(textkey::gallery_frame_sliders));
  MuLayout* sliders = row(column, "row");
  MuSlider* across = MuSlider::create(sliders, "across");
  across->setValue(30);
  sliders->setChildLayout(across, MuLayout::Weighted | MuLayout::AtStart, 1);
  MuSlider* upright = MuSlider::create(sliders, "upright", MuSlider::Vertical);
  upright->setRange(0, 10);
  upright->setValue(7);
  upright->setEnabled(false);
  // The upright slider is as long as the row is high.
  MuSpacer::create(sliders, 0, Mui::toPixels(sliderLength));
}

} // namespace

GalleryForm::GalleryForm() {
  const Size size = Mui::textToPixels(Size(formWidth, 0));
  dialog_.reset(MuDialog::create("gallery", XN_TEXT(textkey::gallery_title), &size,
                                 MuDialog::FitHeight, nullptr, nullptr));
  dialog_->addObserver(this);
  MuLayout* column = MuLayout::create(dialog_.get(), "column", MuLayout::Vertical);
  MuStatic::create(column, "heading", XN_TEXT(textkey::gallery_heading), MuStatic::Heading);
  MuStatic::create(column, "detail", XN_TEXT(textkey::gallery_detail), MuStatic::Detail);

  MuLayout* top = MuLayout::create(column, "top", MuLayout::Horizontal);
  top->setDefaultMode(MuLayout::Weighted);
  buildButtons(top);
  buildChecks(top);
  MuLayout* bottom = MuLayout::create(column, "bottom", MuLayout::Horizontal);
  bottom->setDefaultMode(MuLayout::Weighted);
  buildText(bottom, &percent_);
  MuLayout* right = MuLayout::create(bottom, "right", MuLayout::Vertical);
  buildSliders(right);
  buildStatics(right);
  // OK and Cancel, OK the default button.
  buttonBar_ =
      std::make_unique<MuButtonBar>(dialog_.get(), MuButtonBar::Ok | MuButtonBar::Cancel, true);
}

void GalleryForm::buildStatics(MuContainer* parent) {
  MuLayout* column = section(parent, "static", XN_TEXT(textkey::gallery_frame_static));
  MuLayout* aligned = row(column, "aligned");
  aligned->setDefaultMode(MuLayout::Weighted);
  MuStatic::create(aligned, "left", XN_TEXT(textkey::gallery_static_left), MuStatic::LeftText);
  MuStatic::create(aligned, "centred", XN_TEXT(textkey::gallery_static_centred),
                   MuStatic::CenteredText);
  MuStatic::create(aligned, "right", XN_TEXT(textkey::gallery_static_right), MuStatic::RightText);
  MuLine::create(column, "rule", true, MuLine::Etched, 2);

  MuLayout* picture = row(column, "picture");
  const Size side = Mui::toPixels(Size(pictureSide, pictureSide));
  MuImage::create(picture, "image", "oxnpermissionscreator", &side);
  MuLine::create(picture, "bar", false, MuLine::Color, Mui::toPixels(4));
  picture->setChildLayout(
      MuText::create(picture, "markup", XN_TEXT(textkey::gallery_text_markup), this, false),
      MuLayout::Weighted, 1);

  message_ = std::make_unique<MuInfoFrame>(column, "message", this, MuFrame::Bordered);
  message_->setMessage(MuInfoFrame::Warning, XN_TEXT(textkey::gallery_info_message),
                       XN_TEXT(textkey::gallery_info_link));
}

void GalleryForm::clicked(MuElement* source) {
  const int id = buttonBar_->buttonId(source);
  if (id == MuButtonBar::Ok || id == MuButtonBar::Cancel)
    dialog_->userClose();
}

void GalleryForm::linkClicked(const char* url) {
  if (std::strcmp(url, messageLink) == 0)
    message_->setMessage(MuInfoFrame::Warning, XN_TEXT(textkey::gallery_info_message),
                         XN_TEXT(textkey::gallery_info_link));
  else
    message_->setShown(false);
}

GalleryForm::~GalleryForm() {
  // The bar and the message take their elements out of the dialog, which is still there.
  buttonBar_.reset();
  message_.reset();
}

} // namespace gallery
