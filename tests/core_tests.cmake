# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# The tests of everything that needs no window, sound or store.
vmod17_test(
  core_tests
  SOURCES app/notices_test.cc
          app/program_test.cc
          app/unsaved_records_test.cc
          shell/app_state_test.cc
          shell/delay_test.cc
          shell/error_report_test.cc
          shell/first_screen_test.cc
          shell/loaded_screens_test.cc
          shell/message_form_test.cc
          shell/mod_server_test.cc
          shell/numbers_test.cc
          shell/record_reader_test.cc
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
          settings/settings_record_test.cc
          settings/restoring_test.cc
          settings/settings_levels_test.cc
          settings/settings_outlook_test.cc
          settings/settings_screen_test.cc
          settings/settings_selection_test.cc
          settings/settings_spoken_test.cc
          settings/settings_summary_test.cc
          settings/settings_test_file_test.cc
          settings/settings_walk_test.cc
          settings/sound_check_test.cc
          settings/test_length_test.cc
          platform/caption_test.cc
          platform/store/memory_host_test.cc
          platform/xml/memory_xml_document_test.cc
  LIBRARIES vmod17_program test_support rapidcheck)

# Records, the worksheet and whole runs.
target_sources(
  core_tests
  PRIVATE app/clock_independence_test.cc
          app/exams_test.cc
          app/free_practice_simulation_test.cc
          app/group_selections_test.cc
          app/student_runs_test.cc
          app/lesson_record_golden_test.cc
          results/counters_test.cc
          results/percentages_test.cc
          results/results_print_test.cc
          results/results_screen_test.cc
          results/lesson_record_test.cc
          worksheet/answers_test.cc
          worksheet/lost_sound_test.cc
          worksheet/material_test.cc
          worksheet/run_flow_test.cc
          worksheet/run_state_test.cc
          worksheet/scoring_test.cc
          worksheet/spoken_test.cc
          worksheet/stored_training_test.cc
          worksheet/task_selection_test.cc
          worksheet/test_flow_test.cc
          worksheet/training_flow_test.cc
          worksheet/waiting_flow_test.cc
          worksheet/worksheet_screen_test.cc)
target_compile_definitions(
  core_tests PRIVATE VMOD17_GOLDEN_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}/golden")
