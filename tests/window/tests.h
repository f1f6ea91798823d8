#pragma once

#include <QObject>

// The test classes; each slot is one test.

namespace tavrelo::window_test {

class ZoomTest : public QObject {
    Q_OBJECT
  private slots:
    void ScalesEveryControl();
    void ScalesTheFonts();
    void OptionsTakeClicksInAllTheirPlace();
    void FollowsTheKeys();
    void FollowsTheWheelOverAnyControl();
    void StaysWithinItsLimits();
    void FollowsTheFrame();
};

class ScreenTest : public QObject {
    Q_OBJECT
  private slots:
    void MaximisingScalesThePageEvenly_data();
    void MaximisingScalesThePageEvenly();
    void GrowsOnlyAsFarAsTheScreenHolds_data();
    void GrowsOnlyAsFarAsTheScreenHolds();
    void EverythingIsReachedByScrolling_data();
    void EverythingIsReachedByScrolling();
    void AMaximisedWindowStaysAsLargeAsItIs();
    void ZoomingBackShowsThePageWhole();
    void TheFocusIsScrolledIntoView();
    void ThePlaceUnderThePointerStays();
    void ThePercentageIsShownAndOpensAMenu();
    void TheDialogStaysOnTheScreen_data();
    void TheDialogStaysOnTheScreen();
    void BoxesStayOnTheScreen_data();
    void BoxesStayOnTheScreen();
    void BoxesHoldLongTexts_data();
    void BoxesHoldLongTexts();
    void ListsStayOnTheScreen_data();
    void ListsStayOnTheScreen();
    void TheTitleNamesTheTool();
};

class LookTest : public QObject {
    Q_OBJECT
  private slots:
    void EveryTextCanBeReadInTheContrastLook();
    void EveryTextCanBeReadOnADarkDesktop();
    void TheModelKeepsItsColors();
    void LinesKeepTheirColors();
    void TheMarkerIsOutlined();
    void TheOutlineOfTheMarkerIsSeenOnADarkDesktop();
    void TheSwitchTurnsContrastOnAndOff();
    void TheDesktopIsFollowed();
    void BoardsAndReportsStayWhitePaper();
    void FocusStandsOut_data();
    void FocusStandsOut();
    void BoxesAndChoicesHaveEdges_data();
    void BoxesAndChoicesHaveEdges();
    void WhatIsPointedAtAndPressedStandsOut_data();
    void WhatIsPointedAtAndPressedStandsOut();
    void MenusCanBeRead_data();
    void MenusCanBeRead();
    void TheFocusOfACellStandsOutFromItsGround();
};

class FreeWindowTest : public QObject {
    Q_OBJECT
  private slots:
    void ADoubleClickOpensTheBoard();
    void ADoubleClickOnAStripIsTheModels();
    void AKeyOpensWhatIsInUse();
    void PicturesScaleAndFollow();
    void PicturesAreToldAndFollow();
    void ReportsGrowAndFollow();
    void TheirMenusAreThoseOfTheSource();
    void TheyCloseWithTheProgram();
};

class FocusTest : public QObject {
    Q_OBJECT
  private slots:
    void StartsNowhere();
    void IsDroppedWhenTheControlIsHidden();
    void IsDroppedWhenItsPanelIsDisabled();
    void GoesByTabInReadingOrder();
    void GoesWhereTheProgramPutsIt();
    void IsNotTakenByLabelsAndPictures();
    void DoesNotJumpIntoTheDialog();
};

class KeyboardTest : public QObject {
    Q_OBJECT
  private slots:
    void RestsOnTheToolbarAtTheStart();
    void MovesInsideTheToolbar();
    void AltAndANumberPressTheToolbar();
    void DialogTakesTheKeysAndGivesThemBack();
    void HelpClosesByEscape();
    void EscapeLeavesAGroup();
    void KeysRestNearAControlThatIsDisabled();
    void TabGoesThroughEveryTool();
    void SolvesAParticle();
    void SolvesABeam();
    void RunsARoutine();
    void ConfiguresAMotionTable();
    void HeldKeysReachTheStrip();
    void EveryCellDoesWhatItSays();
    void ATableIsClickedByKeys();
    void CellsAreAccessible();
    void LettersAreFreeAndTheirOwn();
    void AltAndALetterPressAButton();
    void AltAndALetterChoosesAnOption();
    void OnlyWhatIsInFrontHasLetters();
    void OptionsAreOneStop();
    void ArrowsPassByDisabledOptions();
    void BoardsAreStopsWhileTheyHoldSomething();
    void FocusIsSeen_data();
    void FocusIsSeen();
};

class TypingTest : public QObject {
    Q_OBJECT
  private slots:
    void LettersOfSpanish();
    void DeadKeysAndInputMethods();
    void InputMethodsIntoACell();
    void ConsumedKeysDoNotType();
    void LongPastesArriveWhole();
    void AFullBoxTakesNoMoreInTheFieldAndInTheModel();
    void PastedLinesAreJoined();
    void UndoTakesBackWhatWasTyped();
    void SelectionIsTold();
};

class RichTextTest : public QObject {
    Q_OBJECT
  private slots:
    void RunsCanBeReadBackAtAnyZoom();
    void AppendingKeepsWhatStands();
    void CopyGivesRichText();
    void CopyGivesTheSizesOfTheProgramAtAnyZoom();
    void MenuIsSpanish();
    void SelectionCountsLineEndsAsTheModelDoes();
    void BackwardSelectionStays();
    void IsReadAloudLineByLine();
    void TheCaretStandsInTheSpokenLineOfItsLine();
    void AFormulaIsReadAloudBesideItsSigns();
};

class BoxesTest : public QObject {
    Q_OBJECT
  private slots:
    void ButtonsAreSpanish_data();
    void ButtonsAreSpanish();
    void EscapeRefuses();
    void ClosingRefuses();
    void TextIsPlain();
    void InputBoxAnswers();
};

class ChangesTest : public QObject {
    Q_OBJECT
  private slots:
    void ABlockOfCellsIsShownOnce();
    void LinesOfOneHandlerAreShownOnce();
    void AFailureOfAHandlerEndsInABoxAndTheProgramGoesOn();
};

class PictureTest : public QObject {
    Q_OBJECT
  private slots:
    void BlackboardHasAMenu();
    void RightButtonReachesOtherPictures();
    void PlacesAreInTheUnitsOfThePictureAtAnyZoom();
    void CopiedImageIsTwiceTheSize();
    void CanvasPaintsWhatWasDrawn();
    void TextIsAsWideAsTheModelMeasures();
    void DescriptionFollowsTheDrawing();
};

class PrintingTest : public QObject {
    Q_OBJECT
  private slots:
    void LongTextsFillSeveralPages();
    void ShortTextsFillOne();
    void PrintsThePagesThatAreLaidOut();
    void RunsStandWhereTheyAreLaidOut();
};

class ClosingTest : public QObject {
    Q_OBJECT
  private slots:
    void ClosingTheWindowEndsTheProgram();
    void TheDialogOpensInTheMiddleAndCloses();
};

class AccessibleTest : public QObject {
    Q_OBJECT
  private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void PanelsLabelsAndOrnamentsHaveTheirRoles();
    void NamesFollowToolsAndLabels();
    void CellsTellTheirHeadingsAndContent();
    void TheFocusGoesWithTheCurrentCell();
    void ATableWithoutCellsHasTheKeysItself();
    void RestoringTheForcesIsSaid();
    void AChosenBlockIsTold();
    void ListsCombosTabsAndArrowsTellTheirState();
    void TheTabInFrontIsTold();
    void ACombosRowIsItsValueAndItsText();
    void AReportIsSaidOnce();
    void OneHandlerIsSaidInOneGo();
    void NothingIsNotSaid();
    void BoxesAreAlertsWithTheirText();
    void TheInputBoxAsksItsQuestion();
};

class LayoutTest : public QObject {
    Q_OBJECT
  private slots:
    void CaptionsFit_data();
    void CaptionsFit();
    void TabsFit_data();
    void TabsFit();
    void PairsStandOverTheirBoxes_data();
    void PairsStandOverTheirBoxes();
    void TextsThatACellCutsAreToldWhole();
    void ARowThatAComboCutsIsToldWhole();
    void MotionTableNeedsNoScrollBars_data();
    void MotionTableNeedsNoScrollBars();
    void HelpLiesOverEverything();
    void EveryControlHasAnAccessibleName();
};

}  // namespace tavrelo::window_test
