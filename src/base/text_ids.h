// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The ids of all texts that a user reads, by number. What each says stands in the files of
/// `assets/languages`, where the key of 640 is "640s"; a name here is short for the English word.
namespace vmod17::text_id {

// Words of the exercise.
inline constexpr int kPrint = 1;
inline constexpr int kForFourNotesAndMore = 2;
inline constexpr int kProgramName = 6;
inline constexpr int kReplacesEarlierProgress = 8;
inline constexpr int kOctaves = 41;
inline constexpr int kTwoHandVoicings = 45;
inline constexpr int kThreeToSevenNotes = 49;
inline constexpr int kTriads = 51;
inline constexpr int kNameTheChordGroup = 56;
inline constexpr int kFourNoteChords = 57;
inline constexpr int kFiveNoteChords = 60;
inline constexpr int kSixNoteChords = 62;
inline constexpr int kSevenNoteChords = 64;
inline constexpr int kSequence = 78;
inline constexpr int kDownwards = 84;
inline constexpr int kChordRoot = 87;
inline constexpr int kNumberOfChords = 88;
inline constexpr int kChordHeading = 95;
inline constexpr int kChord = 97;
inline constexpr int kRange = 107;
inline constexpr int kUser = 109;
inline constexpr int kChordDisplay = 114;
inline constexpr int kArpeggioSpeed = 116;
inline constexpr int kTask = 129;
inline constexpr int kTrainingCompleted = 130;
inline constexpr int kUpwards = 133;
inline constexpr int kSelected = 135;
inline constexpr int kFreePractice = 136;
inline constexpr int kMaterial = 138;
inline constexpr int kSelectionIncomplete = 139;
inline constexpr int kSelect = 140;
inline constexpr int kSelectable = 141;
inline constexpr int kAutomatic = 142;
inline constexpr int kRegister = 153;
inline constexpr int kIdentify = 154;
inline constexpr int kAccented = 156;
inline constexpr int kBuild = 160;
inline constexpr int kDate = 189;
inline constexpr int kDirect = 194;
inline constexpr int kSettingsUnreadable = 196;
inline constexpr int kDominantAlteredShort = 199;
inline constexpr int kDominant = 200;
inline constexpr int kDominantAltered = 201;
inline constexpr int kSettingsTitle = 221;
inline constexpr int kQuit = 223;
inline constexpr int kResultsTitle = 224;
inline constexpr int kWrong = 232;
inline constexpr int kFixedTuning = 238;
inline constexpr int kTuning = 243;
inline constexpr int kOverallResult = 275;
inline constexpr int kConstant = 277;
inline constexpr int kAllAtOnce = 278;
inline constexpr int kStartTitle = 287;
inline constexpr int kRoot = 297;
inline constexpr int kGroup = 301;
inline constexpr int kChordGroups = 302;
inline constexpr int kHalfDiminished = 312;
inline constexpr int kHigh = 319;
inline constexpr int kModuleTitle = 347;
inline constexpr int kExerciseName = 348;
inline constexpr int kChordSizes = 364;
inline constexpr int kSound = 365;
inline constexpr int kSoundCheck = 366;
inline constexpr int kSlow = 371;
inline constexpr int kVolume = 372;
inline constexpr int kTileNumber = 374;
inline constexpr int kMajorSeventh = 379;
inline constexpr int kMajorSeventhAltered = 380;
inline constexpr int kManual = 383;
inline constexpr int kMinutes = 394;
inline constexpr int kAtLeastOne = 395;
inline constexpr int kAtLeastTwo = 396;
inline constexpr int kMedium = 400;
inline constexpr int kMinorSeventh = 409;
inline constexpr int kTonicMinor = 410;
inline constexpr int kNextTask = 420;
inline constexpr int kLow = 424;
inline constexpr int kNumber = 426;
inline constexpr int kSymbolOnly = 429;
inline constexpr int kOk = 432;
inline constexpr int kExam = 438;
inline constexpr int kTimeLeft = 461;
inline constexpr int kTasksLeft = 462;
inline constexpr int kRight = 468;
inline constexpr int kDirection = 469;
inline constexpr int kFast = 470;
inline constexpr int kVeryHigh = 476;
inline constexpr int kVerySlow = 477;
inline constexpr int kVeryLow = 478;
inline constexpr int kVeryFast = 479;
inline constexpr int kSeconds = 480;
inline constexpr int kSaveProgressQuestion = 495;
inline constexpr int kPlay = 496;
inline constexpr int kVoice = 499;
inline constexpr int kNotesAndSymbol = 507;
inline constexpr int kTempo = 547;
inline constexpr int kTest = 550;
inline constexpr int kShowTestStatus = 551;
inline constexpr int kHideTestStatus = 552;
inline constexpr int kTrainingNew = 564;
inline constexpr int kTrainingContinued = 565;
inline constexpr int kTrainingProgress = 566;
inline constexpr int kExerciseType = 586;
inline constexpr int kPracticeMode = 587;
inline constexpr int kUnaccented = 588;
inline constexpr int kIndividual = 589;
inline constexpr int kVariable = 603;
inline constexpr int kDiminished = 609;
inline constexpr int kFromTheBottomUp = 615;
inline constexpr int kChanging = 623;
inline constexpr int kRandom = 624;
inline constexpr int kContinue = 625;
inline constexpr int kRepeat = 629;
inline constexpr int kRepeatCheck = 632;
inline constexpr int kTooHard = 638;
inline constexpr int kBack = 640;

// Notes an octave apart, which are counted on from each other: kC2 + j.
inline constexpr int kC2 = 671;
inline constexpr int kC3 = 672;
inline constexpr int kC4 = 673;
inline constexpr int kC5 = 674;
inline constexpr int kC6 = 675;
inline constexpr int kC7 = 676;

// The version, signs and short words, and what went wrong.
inline constexpr int kVersion = 699;
inline constexpr int kColon = 700;
inline constexpr int kTo = 702;
inline constexpr int kSomethingWentWrong = 720;
inline constexpr int kErrorIsInTheLog = 721;
inline constexpr int kWindowWillClose = 722;
inline constexpr int kTryAgainOrAskTeacher = 723;
inline constexpr int kOneMoment = 726;

// Buttons, and the end of a program.
inline constexpr int kYes = 9001;
inline constexpr int kNo = 9002;
inline constexpr int kProgramEndsWithError = 9003;

// Files of tests.
inline constexpr int kNoFrameMarked = 9011;
inline constexpr int kTestFileNotWritten = 9012;
inline constexpr int kTestFileUnreadable = 9013;
inline constexpr int kLine = 9014;
inline constexpr int kColumn = 9015;
inline constexpr int kSettingsPassedOver = 9016;
inline constexpr int kSelectAll = 9017;
inline constexpr int kTakeAllBack = 9018;

// The store.
inline constexpr int kStoreIsNewer = 9101;
inline constexpr int kStorePlaceUnusable = 9102;
inline constexpr int kStoreInUse = 9103;
inline constexpr int kStoreReadOnly = 9104;
inline constexpr int kStoreNotWritten = 9105;
inline constexpr int kStoreDamaged = 9106;
inline constexpr int kRecordDamaged = 9107;
inline constexpr int kServerAway = 9108;
inline constexpr int kStoreUnreadableNow = 9109;
inline constexpr int kStoreAddressUnreadable = 9110;
inline constexpr int kServerUnusable = 9111;
inline constexpr int kNewerTrainingHolds = 9112;
inline constexpr int kStoreWritesLater = 9113;
inline constexpr int kKeptUserNumberTaken = 9114;
inline constexpr int kOutboxDamaged = 9117;
inline constexpr int kNotABackup = 9120;
inline constexpr int kBackupDamaged = 9121;
inline constexpr int kBackupIsNewer = 9122;
inline constexpr int kStoreInUseByOther = 9123;
inline constexpr int kBackupNotRestored = 9124;
inline constexpr int kBackupIsInUse = 9125;

// The sound output.
inline constexpr int kSoundfontDamaged = 9151;
inline constexpr int kSoundfontMissing = 9152;
inline constexpr int kNoSoundOutput = 9153;
inline constexpr int kSoundOutputStopped = 9154;
inline constexpr int kMidiDeviceGone = 9155;
inline constexpr int kMidiDeviceUnknown = 9156;
inline constexpr int kSoundfontReplaced = 9157;

// Lesson records and backups.
inline constexpr int kRecordSavedElsewhere = 9201;
inline constexpr int kRecordNotSavedAnywhere = 9202;
inline constexpr int kTryAgain = 9203;
inline constexpr int kAnotherFolder = 9204;
inline constexpr int kGiveRecordUp = 9205;
inline constexpr int kSaveRecord = 9206;
inline constexpr int kRecordNotSavedAs = 9207;
inline constexpr int kRestoreBackup = 9208;
inline constexpr int kChooseBackup = 9209;
inline constexpr int kRestoreBackupQuestion = 9210;
inline constexpr int kBackupRestored = 9211;

// Languages, and programs that do not answer.
inline constexpr int kLanguageUnreadable = 9251;
inline constexpr int kNoWordsFound = 9252;
inline constexpr int kLanguageTooLarge = 9253;
inline constexpr int kLanguageAsksForFiles = 9254;
inline constexpr int kLanguageDamaged = 9255;
inline constexpr int kMoreLanguagesFaulty = 9256;
inline constexpr int kHostSilentQuestion = 9257;
inline constexpr int kExerciseSilentQuestion = 9258;
inline constexpr int kCouldNotBeEnded = 9259;
inline constexpr int kEndSilentExerciseQuestion = 9260;

// Trainings, print and lost sound.
inline constexpr int kTrainingNotSavedQuestion = 9301;
inline constexpr int kPrintedToFile = 9302;
inline constexpr int kPrinterDidNotTake = 9303;
inline constexpr int kPrinterNotReady = 9304;
inline constexpr int kPageNotSaved = 9305;
inline constexpr int kSoundLost = 9306;

// The window of the help.
inline constexpr int kHelpContents = 9391;
inline constexpr int kHelpBack = 9392;
inline constexpr int kHelpForward = 9393;
inline constexpr int kHelpPageNotFound = 9394;

// The host's window.
inline constexpr int kEarTraining = 9401;
inline constexpr int kWhoIsPractising = 9402;
inline constexpr int kNobody = 9403;
inline constexpr int kAdd = 9404;
inline constexpr int kChange = 9405;
inline constexpr int kRemove = 9406;
inline constexpr int kLanguage = 9407;
inline constexpr int kSoundOutput = 9408;
inline constexpr int kBuiltInSynthesiser = 9409;
inline constexpr int kOutputNotConnected = 9410;
inline constexpr int kTestTheSound = 9411;
inline constexpr int kChooseSoundfontButton = 9412;
inline constexpr int kSystemSoundfont = 9413;
inline constexpr int kSoundfontOf = 9414;
inline constexpr int kSystemSoundfontPlays = 9415;
inline constexpr int kSynthesiserPlaysInstead = 9416;
inline constexpr int kChordIsPlaying = 9417;
inline constexpr int kWhatSoundTestDoes = 9418;
inline constexpr int kLog = 9419;
inline constexpr int kQuitHost = 9420;
inline constexpr int kHelp = 9421;
inline constexpr int kStarting = 9422;
inline constexpr int kAddUser = 9423;
inline constexpr int kChangeUser = 9424;
inline constexpr int kName = 9425;
inline constexpr int kFirstName = 9426;
inline constexpr int kMatriculationNumber = 9427;
inline constexpr int kCancel = 9428;
inline constexpr int kRemoveUserQuestion = 9429;
inline constexpr int kChosenSoundfontMissing = 9430;
inline constexpr int kNumberIsNeeded = 9431;
inline constexpr int kNumberTooLong = 9432;
inline constexpr int kNameTooLong = 9433;
inline constexpr int kNumberImpossible = 9434;
inline constexpr int kNumberTaken = 9435;
inline constexpr int kNotASoundfont = 9436;
inline constexpr int kChooseSoundfont = 9437;

// What became of a sound test.
inline constexpr int kNoSoundLeft = 9441;
inline constexpr int kSynthesiserPlayed = 9442;
inline constexpr int kSynthesiserPlayedAtLevel = 9443;
inline constexpr int kIfNothingFromLoudspeakers = 9444;
inline constexpr int kSynthesiserNotReady = 9445;
inline constexpr int kOutputTookNoSound = 9446;
inline constexpr int kSoundfontHasNoPiano = 9447;
inline constexpr int kMidiDeviceTookChord = 9448;
inline constexpr int kIfNothingFromMidiDevice = 9449;
inline constexpr int kMidiDeviceUnreachable = 9450;

// The host on the exercise, and its log.
inline constexpr int kExerciseEndedUnexpectedly = 9451;
inline constexpr int kExerciseIsOpen = 9452;
inline constexpr int kExerciseNotStarted = 9453;
inline constexpr int kLogTime = 9455;
inline constexpr int kLogPlace = 9456;
inline constexpr int kLogNumber = 9457;
inline constexpr int kLogText = 9458;
inline constexpr int kLogSource = 9459;
inline constexpr int kRefresh = 9460;
inline constexpr int kCopyAsFaultReport = 9461;
inline constexpr int kClose = 9462;
inline constexpr int kReportInClipboard = 9463;
inline constexpr int kLogIsEmpty = 9464;
inline constexpr int kUnexpectedError = 9467;

// The worksheet, and the sound on its way.
inline constexpr int kEndTestQuestion = 9502;
inline constexpr int kPreparingSound = 9531;
inline constexpr int kNothingPlayed = 9532;

// The settings screen.
inline constexpr int kChooseChordSize = 9551;
inline constexpr int kChosenChordSizes = 9552;
inline constexpr int kChooseChordGroup = 9553;
inline constexpr int kChosenChordGroups = 9554;
inline constexpr int kModeHoldsSettings = 9555;
inline constexpr int kChordsInRun = 9560;
inline constexpr int kChordsMixedAnew = 9561;
inline constexpr int kTasksAndTime = 9562;
inline constexpr int kChordSizesMissing = 9563;
inline constexpr int kChordGroupsMissing = 9564;
inline constexpr int kCheckNeedsSelection = 9565;
inline constexpr int kCheckNeedsAllGroups = 9566;
inline constexpr int kSampleIsPlaying = 9567;
inline constexpr int kReadTest = 9601;
inline constexpr int kSaveSettings = 9602;

// The results, and the menu of a frame.
inline constexpr int kNameHeading = 9603;
inline constexpr int kFirstNameHeading = 9604;
inline constexpr int kMatriculationNumberHeading = 9605;
inline constexpr int kExamMark = 9606;

// What is wrong with the file of a test.
inline constexpr int kFileOrFolderMissing = 9611;
inline constexpr int kAccessDenied = 9612;
inline constexpr int kIsAFolder = 9613;
inline constexpr int kDiskFull = 9614;
inline constexpr int kSystemSays = 9615;
inline constexpr int kNotAReadableFile = 9616;
inline constexpr int kFileTooLarge = 9617;
inline constexpr int kTestTooLarge = 9618;
inline constexpr int kUnreadableCharacter = 9619;
inline constexpr int kNotWellFormed = 9620;
inline constexpr int kRootElementIsNot = 9621;
inline constexpr int kSecondRootElement = 9622;
inline constexpr int kElementMissing = 9623;
inline constexpr int kAttributeMissing = 9624;
inline constexpr int kNoWholeNumber = 9625;

// What does not fit or cannot be shown.
inline constexpr int kHelpIsInEnglish = 9631;
inline constexpr int kAndMore = 9633;
inline constexpr int kHelpPageUnshowable = 9634;
inline constexpr int kStoreFolderNotUtf8 = 9635;

// What is read aloud.
inline constexpr int kVoicing = 9681;
inline constexpr int kTileOpen = 9682;
inline constexpr int kTileRight = 9683;
inline constexpr int kTileWrong = 9684;
inline constexpr int kTileLost = 9685;
inline constexpr int kSolution = 9721;
inline constexpr int kChordOf = 9722;
inline constexpr int kPleaseAnswer = 9723;
inline constexpr int kEndOfTask = 9724;
inline constexpr int kEndOfTraining = 9726;
inline constexpr int kEndOfTest = 9727;
inline constexpr int kTimeIsUp = 9728;
inline constexpr int kMoveFromTo = 9731;
inline constexpr int kMoveAllFromTo = 9732;

}  // namespace vmod17::text_id
