# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# The tests of everything that needs no window, sound or store.
vmod17_test(
  core_tests
  SOURCES shell/notices_test.cc
          module/program_test.cc
          shell/unsaved_records_test.cc
          shell/app_state_test.cc
          shell/delay_test.cc
          shell/error_report_test.cc
          shell/first_screen_test.cc
          shell/first_screen_layout_test.cc
          shell/loaded_screens_test.cc
          shell/message_form_test.cc
          shell/mod_server_test.cc
          base/language_code_test.cc
          base/numbers_test.cc
          base/record_reader_test.cc
          shell/text_lookup_test.cc
          shell/uniform_random_test.cc
          catalogue/chord_board_test.cc
          catalogue/chord_spelling_test.cc
          catalogue/chord_table_test.cc
          catalogue/picture_store_test.cc
          sound/chord_playback_test.cc
          sound/instrument_list_test.cc
          sound/mod_midi_test.cc
          sound/note_queue_test.cc
          sound/sample_playback_test.cc
          sound/wait_sign_test.cc
          exercise/settings_record_test.cc
          settings/restoring_test.cc
          settings/settings_layout_test.cc
          settings/settings_levels_test.cc
          settings/settings_outlook_test.cc
          settings/settings_screen_test.cc
          settings/settings_selection_test.cc
          settings/settings_spoken_test.cc
          settings/settings_summary_test.cc
          settings/settings_table_test.cc
          settings/fixed_settings_test.cc
          settings/settings_walk_test.cc
          settings/sound_check_test.cc
          settings/time_limit_test.cc
          forms/caption_test.cc
          forms/layout_test.cc
          store/memory_host_test.cc
          xml/memory_xml_document_test.cc
  LIBRARIES vmod17_program test_support rapidcheck
  PRECOMPILE ${CMAKE_CURRENT_SOURCE_DIR}/support/program_fixture.h
  SHARDS 4)

# Records, the worksheet and whole runs.
target_sources(
  core_tests
  PRIVATE module/clock_independence_test.cc
          module/exams_test.cc
          module/free_practice_simulation_test.cc
          module/group_selections_test.cc
          module/student_runs_test.cc
          module/lesson_record_golden_test.cc
          exercise/counters_test.cc
          exercise/exercise_names_test.cc
          exercise/stored_settings_test.cc
          exercise/stored_training_test.cc
          exercise/training_weights_test.cc
          results/percentages_test.cc
          results/results_layout_test.cc
          results/results_print_test.cc
          results/results_screen_test.cc
          exercise/lesson_record_test.cc
          worksheet/answer_field_test.cc
          worksheet/answers_test.cc
          worksheet/judging_test.cc
          worksheet/lost_sound_test.cc
          worksheet/material_test.cc
          worksheet/run_flow_test.cc
          worksheet/run_state_test.cc
          worksheet/scoring_test.cc
          worksheet/spoken_test.cc
          worksheet/task_selection_test.cc
          worksheet/timed_flow_test.cc
          worksheet/training_flow_test.cc
          worksheet/waiting_flow_test.cc
          worksheet/worksheet_layout_test.cc
          worksheet/worksheet_screen_test.cc)
target_compile_definitions(
  core_tests PRIVATE VMOD17_GOLDEN_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}/golden")
