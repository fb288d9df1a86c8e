// SPDX-License-Identifier: GPL-3.0-or-later

// What can fail in the file commands: the boxes that tell of it, and what goes on afterwards.
#include <gtest/gtest.h>

#include "Program.h"
#include "objects/LadderObject.h"
#include "store/ObjectRegistry.h"
#include "support/ErrorOf.h"
#include "support/ShownBoxes.h"

namespace velra::test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

/// The open document behind a command that failed.
enum class Document { Stays, None, EmptyShell };

class Failures : public ::testing::Test {
 protected:
  void expectShown(const Texts& expected) {
    const Texts shown = program_.ui.takeShown();
    EXPECT_TRUE(sameBoxes(shown, expected, program_.folder.path()))
        << ::testing::PrintToString(shown);
  }
  void openSample() {
    program_.ui.yesNoCancel = {Answer::No};
    program_.mainForm.OpenFile(program_.sample());
    program_.ui.takeShown();
    ASSERT_EQ(program_.texts(TreeId::tvwMainTree).size(), 10U);
  }
  void expectDocument(Document after, const std::shared_ptr<AVDocument>& before) {
    if (after == Document::Stays) {
      EXPECT_EQ(program_.document(), before);
      return;
    }
    EXPECT_TRUE(program_.texts(TreeId::tvwMainTree).empty());
    EXPECT_TRUE(program_.texts(TreeId::tvwExpression).empty());
    EXPECT_EQ(program_.document() == nullptr, after == Document::None);
    program_.mainForm.mnuFileSave();  // has nothing to write, and says nothing
    program_.mainForm.mnuFile_Click();
    EXPECT_FALSE(program_.mainForm.menuState().mnuExportToDB);
    program_.mainForm.mnuFileSaveAs();
    program_.mainForm.mnuExportToDB();
    expectShown(Texts(2, "exclamation: No document is open."));
    if (after == Document::EmptyShell) {
      EXPECT_EQ(program_.document()->collObjects().Count(), 0U);
    }
    expectShown({});
  }
  /// Puts the files of the folder back as they were.
  void restore(const std::map<std::string, std::string>& files) {
    for (const auto& [name, bytes] : files) {
      if (program_.folder.read(name) != bytes) program_.folder.write(name, bytes);
    }
  }
  void useSchema(const std::string& path) {
    program_.settings.write(ApplicationModule::kMachineSection, "XSDPath", path);
  }

  Program program_;
};

TEST_F(Failures, WhatCannotBeOpenedIsToldOf) {
  const std::string objects = "sample/lighthouse_files/lighthouse_";
  const std::string notTheClass = "exclamation: AVDocument: class name does not match xml instance";
  const struct {
    const char* what;
    std::string file;                                          // is opened
    std::vector<std::pair<std::string, std::string>> written;  // before
    Texts shown;
    Document after;
  } cases[] = {
      {"an XML file that is missing",
       "missing.xml",
       {},
       {"exclamation: XML Parser: ...", "exclamation: Could not find the object: ~/missing.xml"},
       Document::EmptyShell},
      {"one whose folder is missing",
       "no such folder/film.xml",
       {},
       {"exclamation: Path not found: ..."},
       Document::None},
      {"a folder in its place",
       "folder.xml",
       {{"folder.xml/file", ""}},
       {"exclamation: XML Parser: ...", "exclamation: Could not find the object: ~/folder.xml"},
       Document::EmptyShell},
      {"one that is cut off",
       "cut/broken.XML",
       {{"cut/broken.XML", "<AVDocument><Title>"}},
       {"exclamation: XML Parser: Line 1: ...", "exclamation: XML Parser: Line 1: ..."},
       Document::EmptyShell},
      {"one of another root",
       "foreign.xml",
       {{"foreign.xml", "<Else/>"}},
       {notTheClass},
       Document::EmptyShell},
      {"an object of no document",
       "other/x_version1.xml",
       {{"other/x_version1.xml", "<Version/>"}},
       {notTheClass},
       Document::EmptyShell},
      {"a broken object of a document",
       objects + "media9.xml",
       {{objects + "media9.xml", "<Media>"}},
       {"exclamation: XML Parser: Line 1: ...", "exclamation: XML Parser: Line 1: ..."},
       Document::EmptyShell},
      {"another file that is missing",
       "nothing.txt",
       {},
       {"exclamation: Could not find the object: ~/nothing.txt",
        "exclamation: File not valid: ~/nothing.txt"},
       Document::Stays},
      {"a folder in its place",
       "folder.txt",
       {{"folder.txt/file", ""}},
       {"exclamation: File not valid: ~/folder.txt"},
       Document::Stays},
      {"an empty one",
       "empty.txt",
       {{"empty.txt", ""}},
       {"exclamation: File not valid: ~/empty.txt"},
       Document::Stays},
      {"one whose first line is blank",
       "blank.txt",
       {{"blank.txt", "   \r\nnaro://object"}},
       {"exclamation: File not valid: ~/blank.txt"},
       Document::Stays},
      {"a link to a server, which nobody reaches",
       "link.txt",
       {{"link.txt", " naro:// object \nsecond"}},
       {},
       Document::None},
      {"a long file with a first line",
       "long.txt",
       {{"long.txt", "object\n" + std::string(100'000, 'x')}},
       {},
       Document::None},
      {"two Storages of one movie",
       "sample/lighthouse.xml",
       {{objects + "storage4.xml", "<Storage><Collocation>lighthouse.mpg</Collocation></Storage>"}},
       {"exclamation: The key already belongs to a member of the list: "
        "lighthouse.mpg (lighthouse_files/lighthouse_media..."},
       Document::None},
      {"a time that is no number",
       "sample/lighthouse.xml",
       {{objects + "version2.xml", "<Version><Duration start='soon' end='1'/></Version>"}},
       {"exclamation: A value is of the wrong type: soon "
        "(lighthouse_files/lighthouse_version2.xml)"},
       Document::None},
      {"a picture that is none",
       "sample/lighthouse.xml",
       {{objects + "mediaobject3.bmp", "no picture"}},
       {"exclamation: The file holds no valid picture..."},
       Document::None},
  };
  const auto whole = program_.folder.snapshot();
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    ASSERT_NO_FATAL_FAILURE(openSample());
    const auto before = program_.document();
    for (const auto& [name, bytes] : one.written) program_.folder.write(name, bytes);
    const auto files = program_.folder.snapshot();
    program_.mainForm.OpenFile(program_.folder / one.file);
    expectShown(one.shown);
    expectDocument(one.after, before);
    EXPECT_EQ(program_.folder.snapshot(), files);
    restore(whole);
    fs::remove(program_.folder / (objects + "media9.xml"));
  }
  openSample();
}

TEST_F(Failures, CancelledDialogsChangeNothing) {
  openSample();
  const auto before = program_.document();
  program_.mainForm.ShowOpenDialog();
  program_.mainForm.mnuFileSaveAs();
  expectShown({"open: Open", "save: Save As | ~/sample/lighthouse"});
  expectDocument(Document::Stays, before);
  EXPECT_FALSE(before->bChanged());
}

TEST_F(Failures, ASchemaThatCannotBeUsed) {
  const std::string loading = "Error loading the schema: ";
  const std::string noClass = "The schema does not provide any definition of the type: AVDocument";
  const struct {
    std::string schema;
    Texts onNew;
    Texts onOpen;
  } cases[] = {
      {"", {"plain: I could not find the xml-schema of the document"}, {}},
      {program_.folder / "no.xsd",
       {"plain: " + loading + "..."},
       {"exclamation: " + loading + "..."}},
      {program_.folder.write("bad.xsd", "<schema"),
       {"plain: " + loading + "Line 1: ..."},
       {"exclamation: " + loading + "Line 1: ..."}},
      {program_.folder.write("other.xsd", "<schema/>"),
       {"plain: " + noClass},
       {"exclamation: " + loading + noClass}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.schema);
    useSchema(one.schema);
    program_.mainForm.OpenFile(program_.sample());
    expectShown(one.onOpen);
    // Without a schema a file opens as a document without fields, and without a title.
    EXPECT_EQ(program_.texts(TreeId::tvwMainTree), one.schema.empty() ? Texts{""} : Texts{});
    EXPECT_EQ(program_.document()->strTitle(), "");

    // There is no document whose tree could be shown.
    EXPECT_EQ(errorOf([&] { program_.mainForm.mnuFileNew(); }), kNoObject);
    expectShown(one.onNew);
    EXPECT_EQ(program_.document(), nullptr);
  }
}

TEST_F(Failures, WhatCannotBeSavedStaysChanged) {
  const std::string media = "lighthouse_files/lighthouse_media1.xml";  // its identifier too
  const struct {
    std::string file;  // has a folder in its place
    Texts shown;
  } cases[] = {
      {"sample/" + media,
       {"plain: Is a directory (" + media + ")", "plain: One or more objects cannot be saved"}},
      {"sample/lighthouse.xml", {"plain: Is a directory (~/sample/lighthouse.xml)"}},
  };
  for (const auto& one : cases) {
    openSample();
    const std::string title = "Other title of " + one.file;
    program_.object("media1")->setStrTitle(title);
    program_.document()->setStrTitle(title);
    const std::string bytes = program_.folder.read(one.file);
    fs::remove(program_.folder / one.file);
    fs::create_directory(program_.folder / one.file);
    program_.mainForm.mnuFileSave();
    expectShown(one.shown);
    EXPECT_TRUE(program_.document()->bChanged());

    fs::remove(program_.folder / one.file);
    program_.folder.write(one.file, bytes);
    program_.mainForm.mnuFileSave();
    expectShown({});
    EXPECT_NE(program_.folder.read(one.file).find(title), std::string::npos);
  }
}

TEST_F(Failures, ADocumentThatCannotBeSavedUnderANameStaysWhatItWas) {
  openSample();
  const auto document = program_.document();
  const auto before = program_.folder.snapshot();
  const std::string title = document->strTitle();
  fs::create_directory(program_.folder / "beacon.xml");
  program_.ui.filesToSave = {program_.folder / "beacon.xml"};
  program_.mainForm.mnuFileSaveAs();
  expectShown({"save: Save As | ~/sample/lighthouse", "plain: Is a directory (~/beacon.xml)"});
  expectDocument(Document::Stays, document);
  EXPECT_EQ(document->strTitle(), title);
  EXPECT_EQ(document->strGUID(), program_.sample());
  EXPECT_TRUE(document->bChanged());
  EXPECT_EQ(program_.folder.snapshot(), before);
}

TEST_F(Failures, TheProgramStartsWithoutVocabularyAndWithoutItsDocument) {
  const std::string schema = program_.app.strXSDPath();
  program_.folder.write("machine.ini", "[SOFTWARE\\Velra]\nXSDPath=" + schema + "\n");
  const StartSteps windows{[&] { program_.ui.shown.emplace_back("window"); },
                           [&] { program_.ui.shown.emplace_back("splash"); }};
  Main(program_.app, program_.mainForm, program_.folder / "missing.xml", windows);
  expectShown({"plain: Error during ThematicKeywords.xml loading ...",
               "plain: The Naro Cross Language Thematic Keywords will not be available", "window",
               "splash", "exclamation: XML Parser: ...",
               "exclamation: Could not find the object: ~/missing.xml"});
  expectDocument(Document::EmptyShell, nullptr);
  EXPECT_EQ(program_.app.objNaroThematicKeywords, nullptr);
  EXPECT_EQ(program_.app.iLanguage, 0);
  openSample();
}

}  // namespace
}  // namespace velra::test
