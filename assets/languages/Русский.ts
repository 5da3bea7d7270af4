<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<TS version="2.1" language="ru_RU">
<context>
    <name></name>
    <message id="1s">
        <source></source>
        <translation>Печать</translation>
    </message>
    <message id="2s">
        <source></source>
        <translation>(для аккордов из 4–7 звуков и войсингов)</translation>
    </message>
    <message id="6s">
        <source></source>
        <extracomment>first part of the version line, before 699 and the number</extracomment>
        <translation>vmod17</translation>
    </message>
    <message id="8s">
        <source></source>
        <extracomment>second line of the question 495</extracomment>
        <translation>(Ранее сохранённое состояние будет заменено.)</translation>
    </message>
    <message id="41s">
        <source></source>
        <extracomment>a number from 2 to 5 stands before it</extracomment>
        <translation>окт.</translation>
    </message>
    <message id="45s">
        <source></source>
        <translation>Двуручные войсинги</translation>
    </message>
    <message id="49s">
        <source></source>
        <translation>От 3 до 7 звуков</translation>
    </message>
    <message id="51s">
        <source></source>
        <translation>Трезвучия</translation>
    </message>
    <message id="56s">
        <source></source>
        <translation>Аккорды из 4–7 звуков/двуручные войсинги: определите группу аккорда</translation>
    </message>
    <message id="57s">
        <source></source>
        <translation>Четырёхзвучия</translation>
    </message>
    <message id="60s">
        <source></source>
        <translation>Пятизвучия</translation>
    </message>
    <message id="62s">
        <source></source>
        <translation>Шестизвучия</translation>
    </message>
    <message id="64s">
        <source></source>
        <translation>Семизвучия</translation>
    </message>
    <message id="78s">
        <source></source>
        <extracomment>how one task follows another</extracomment>
        <translation>Переход</translation>
    </message>
    <message id="84s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>нисходящее</translation>
    </message>
    <message id="87s">
        <source></source>
        <extracomment>whether the root is accented</extracomment>
        <translation>Осн. тон аккорда</translation>
    </message>
    <message id="88s">
        <source></source>
        <extracomment>chords in one task</extracomment>
        <translation>Число аккордов</translation>
    </message>
    <message id="95s">
        <source></source>
        <extracomment>heading of the list of chords; 700 follows</extracomment>
        <translation>Аккорд</translation>
    </message>
    <message id="97s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Аккорд</translation>
    </message>
    <message id="107s">
        <source></source>
        <translation>Диапазон</translation>
    </message>
    <message id="109s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Пользователь</translation>
    </message>
    <message id="114s">
        <source></source>
        <translation>Показ аккордов</translation>
    </message>
    <message id="116s">
        <source></source>
        <translation>Темп арпеджио</translation>
    </message>
    <message id="129s">
        <source></source>
        <extracomment>" 1" follows</extracomment>
        <translation>Задание</translation>
    </message>
    <message id="130s">
        <source></source>
        <translation>Тренировка завершена</translation>
    </message>
    <message id="133s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>восходящее</translation>
    </message>
    <message id="135s">
        <source></source>
        <translation>Выбрано</translation>
    </message>
    <message id="136s">
        <source></source>
        <translation>Свободный режим</translation>
    </message>
    <message id="138s">
        <source></source>
        <translation>Материал</translation>
    </message>
    <message id="139s">
        <source></source>
        <extracomment>on the OK button while the selection is incomplete</extracomment>
        <translation>Выбор??</translation>
    </message>
    <message id="140s">
        <source></source>
        <translation>На выбор</translation>
    </message>
    <message id="141s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>на выбор</translation>
    </message>
    <message id="142s">
        <source></source>
        <extracomment>the tasks follow by themselves</extracomment>
        <translation>авто</translation>
    </message>
    <message id="153s">
        <source></source>
        <translation>Регистр</translation>
    </message>
    <message id="154s">
        <source></source>
        <translation>Определить</translation>
    </message>
    <message id="156s">
        <source></source>
        <translation>с акцентом</translation>
    </message>
    <message id="160s">
        <source></source>
        <translation>Построить</translation>
    </message>
    <message id="189s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>Дата</translation>
    </message>
    <message id="194s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>прямо</translation>
    </message>
    <message id="196s">
        <source></source>
        <translation>Не удаётся прочитать сохранённые настройки. Начните новую тренировку.</translation>
    </message>
    <message id="199s">
        <source></source>
        <extracomment>short form of 201 for a small label</extracomment>
        <translation>Дом. 7, альт.</translation>
    </message>
    <message id="200s">
        <source></source>
        <translation>Доминанта 7</translation>
    </message>
    <message id="201s">
        <source></source>
        <translation>Доминанта 7, альт.</translation>
    </message>
    <message id="221s">
        <source></source>
        <extracomment>window title of the settings screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Настройки</translation>
    </message>
    <message id="223s">
        <source></source>
        <translation>ВЫХОД</translation>
    </message>
    <message id="224s">
        <source></source>
        <extracomment>window title of the results screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> Результаты</translation>
    </message>
    <message id="232s">
        <source></source>
        <translation>Неверно</translation>
    </message>
    <message id="238s">
        <source></source>
        <translation>фикс. (ля¹ = 440 Гц)</translation>
    </message>
    <message id="243s">
        <source></source>
        <translation>Строй</translation>
    </message>
    <message id="275s">
        <source></source>
        <translation>Общий результат</translation>
    </message>
    <message id="277s">
        <source></source>
        <extracomment>of the root of the tasks and of the timbre</extracomment>
        <translation>постоянный</translation>
    </message>
    <message id="278s">
        <source></source>
        <translation>все сразу (без&#xa0;арпеджио)</translation>
    </message>
    <message id="287s">
        <source></source>
        <extracomment>window title of the first screen, after 347 and 700; begins with the blank after 700</extracomment>
        <translation> Начало</translation>
    </message>
    <message id="297s">
        <source></source>
        <translation>Осн. тон</translation>
    </message>
    <message id="301s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>Группа</translation>
    </message>
    <message id="302s">
        <source></source>
        <translation>Группы аккордов</translation>
    </message>
    <message id="312s">
        <source></source>
        <translation>Полууменьшённый</translation>
    </message>
    <message id="319s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>высокий</translation>
    </message>
    <message id="347s">
        <source></source>
        <extracomment>title of the module</extracomment>
        <translation>Джазовые аккорды на слух</translation>
    </message>
    <message id="348s">
        <source></source>
        <extracomment>title of the exercise</extracomment>
        <translation>Джазовые аккорды на слух</translation>
    </message>
    <message id="364s">
        <source></source>
        <translation>Виды аккордов</translation>
    </message>
    <message id="365s">
        <source></source>
        <translation>Тембр</translation>
    </message>
    <message id="366s">
        <source></source>
        <translation>Проверка звука</translation>
    </message>
    <message id="371s">
        <source></source>
        <translation>медленно</translation>
    </message>
    <message id="372s">
        <source></source>
        <translation>Громкость</translation>
    </message>
    <message id="374s">
        <source></source>
        <extracomment>a number follows</extracomment>
        <translation>Поле №:</translation>
    </message>
    <message id="379s">
        <source></source>
        <translation>Мажор maj7</translation>
    </message>
    <message id="380s">
        <source></source>
        <translation>Мажор maj7, альт.</translation>
    </message>
    <message id="383s">
        <source></source>
        <extracomment>the next task is asked for</extracomment>
        <translation>вручную</translation>
    </message>
    <message id="394s">
        <source></source>
        <translation>мин</translation>
    </message>
    <message id="395s">
        <source></source>
        <translation>минимум 1!</translation>
    </message>
    <message id="396s">
        <source></source>
        <translation>минимум 2!</translation>
    </message>
    <message id="400s">
        <source></source>
        <translation>средне</translation>
    </message>
    <message id="409s">
        <source></source>
        <translation>Минор 7</translation>
    </message>
    <message id="410s">
        <source></source>
        <translation>Минорная тоника</translation>
    </message>
    <message id="420s">
        <source></source>
        <translation>Следующее задание</translation>
    </message>
    <message id="424s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>низкий</translation>
    </message>
    <message id="426s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>№</translation>
    </message>
    <message id="429s">
        <source></source>
        <translation>только символ</translation>
    </message>
    <message id="432s">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="438s">
        <source></source>
        <translation>Экзамен</translation>
    </message>
    <message id="461s">
        <source></source>
        <extracomment>the minutes with 394 and the seconds with 480 follow</extracomment>
        <translation>Осталось:</translation>
    </message>
    <message id="462s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>Осталось заданий:</translation>
    </message>
    <message id="468s">
        <source></source>
        <translation>Верно</translation>
    </message>
    <message id="469s">
        <source></source>
        <extracomment>of an arpeggio</extracomment>
        <translation>Направление</translation>
    </message>
    <message id="470s">
        <source></source>
        <translation>быстро</translation>
    </message>
    <message id="476s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>очень высокий</translation>
    </message>
    <message id="477s">
        <source></source>
        <translation>очень медленно</translation>
    </message>
    <message id="478s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>очень низкий</translation>
    </message>
    <message id="479s">
        <source></source>
        <translation>очень быстро</translation>
    </message>
    <message id="480s">
        <source></source>
        <translation>с</translation>
    </message>
    <message id="495s">
        <source></source>
        <translation>Сохранить состояние тренировки?</translation>
    </message>
    <message id="496s">
        <source></source>
        <translation>Сыграть</translation>
    </message>
    <message id="499s">
        <source></source>
        <extracomment>a number from 1 to 7 follows</extracomment>
        <translation>Голос</translation>
    </message>
    <message id="507s">
        <source></source>
        <translation>ноты + символ</translation>
    </message>
    <message id="547s">
        <source></source>
        <translation>Темп</translation>
    </message>
    <message id="550s">
        <source></source>
        <translation>Тест</translation>
    </message>
    <message id="551s">
        <source></source>
        <translation>Показать ход теста</translation>
    </message>
    <message id="552s">
        <source></source>
        <translation>Скрыть ход теста</translation>
    </message>
    <message id="564s">
        <source></source>
        <translation>Тренировка (новая)</translation>
    </message>
    <message id="565s">
        <source></source>
        <translation>Тренировка (продолжение)</translation>
    </message>
    <message id="566s">
        <source></source>
        <translation>Ход тренировки</translation>
    </message>
    <message id="586s">
        <source></source>
        <translation>Вид упражнения</translation>
    </message>
    <message id="587s">
        <source></source>
        <translation>Режим занятий</translation>
    </message>
    <message id="588s">
        <source></source>
        <translation>без акцента</translation>
    </message>
    <message id="589s">
        <source></source>
        <extracomment>each voice has a timbre of its own</extracomment>
        <translation>разный</translation>
    </message>
    <message id="603s">
        <source></source>
        <translation>переменный</translation>
    </message>
    <message id="609s">
        <source></source>
        <translation>Уменьшённый</translation>
    </message>
    <message id="615s">
        <source></source>
        <translation>снизу вверх</translation>
    </message>
    <message id="623s">
        <source></source>
        <extracomment>of the root of the tasks</extracomment>
        <translation>меняется</translation>
    </message>
    <message id="624s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>случайное</translation>
    </message>
    <message id="625s">
        <source></source>
        <translation>Далее</translation>
    </message>
    <message id="629s">
        <source></source>
        <translation>Повторить</translation>
    </message>
    <message id="632s">
        <source></source>
        <translation>Повторить (проверка)</translation>
    </message>
    <message id="638s">
        <source></source>
        <translation>Слишком трудно!</translation>
    </message>
    <message id="640s">
        <source></source>
        <translation>Назад</translation>
    </message>
    <message id="671s">
        <source></source>
        <extracomment>MIDI note 36</extracomment>
        <translation>До</translation>
    </message>
    <message id="672s">
        <source></source>
        <extracomment>MIDI note 48</extracomment>
        <translation>до</translation>
    </message>
    <message id="673s">
        <source></source>
        <extracomment>MIDI note 60</extracomment>
        <translation>до¹</translation>
    </message>
    <message id="674s">
        <source></source>
        <extracomment>MIDI note 72</extracomment>
        <translation>до²</translation>
    </message>
    <message id="675s">
        <source></source>
        <extracomment>MIDI note 84</extracomment>
        <translation>до³</translation>
    </message>
    <message id="676s">
        <source></source>
        <extracomment>MIDI note 96</extracomment>
        <translation>до⁴</translation>
    </message>
    <message id="699s">
        <source></source>
        <extracomment>the version number follows</extracomment>
        <translation>версия</translation>
    </message>
    <message id="700s">
        <source></source>
        <extracomment>stands between the two parts of a window title and after the heading 95</extracomment>
        <translation>:</translation>
    </message>
    <message id="702s">
        <source></source>
        <extracomment>between two notes</extracomment>
        <translation>–</translation>
    </message>
    <message id="720s">
        <source></source>
        <extracomment>first of four lines of one message</extracomment>
        <translation>К сожалению, произошла ошибка.</translation>
    </message>
    <message id="721s">
        <source></source>
        <extracomment>second of four lines</extracomment>
        <translation>Сведения о ней записаны в журнал Melvado.</translation>
    </message>
    <message id="722s">
        <source></source>
        <extracomment>third of four lines</extracomment>
        <translation>Начатое действие будет прервано, а окно — закрыто.</translation>
    </message>
    <message id="723s">
        <source></source>
        <extracomment>last of four lines</extracomment>
        <translation>Попробуйте ещё раз. Если это не поможет, обратитесь к преподавателю.</translation>
    </message>
    <message id="726s">
        <source></source>
        <translation>Подождите немного…</translation>
    </message>
    <message id="9001s">
        <source></source>
        <translation>Да</translation>
    </message>
    <message id="9002s">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="9003s">
        <source></source>
        <translation>В программе произошла ошибка, которую невозможно исправить. Программа будет закрыта.</translation>
    </message>
    <message id="9011s">
        <source></source>
        <translation>Ни одна рамка не отмечена для теста. Щёлкните правой кнопкой мыши по рамкам, настройки которых должен задавать тест, и выберите «Экзамен».</translation>
    </message>
    <message id="9012s">
        <source></source>
        <translation>Не удалось записать файл теста.</translation>
    </message>
    <message id="9013s">
        <source></source>
        <translation>Не удаётся прочитать файл теста. Настройки не изменены.</translation>
    </message>
    <message id="9014s">
        <source></source>
        <translation>Строка</translation>
    </message>
    <message id="9015s">
        <source></source>
        <translation>столбец</translation>
    </message>
    <message id="9016s">
        <source></source>
        <translation>Этих настроек из файла теста здесь нет; они пропущены:</translation>
    </message>
    <message id="9017s">
        <source></source>
        <translation>выбрать все</translation>
    </message>
    <message id="9018s">
        <source></source>
        <translation>убрать все</translation>
    </message>
    <message id="9101s">
        <source></source>
        <translation>Тренировки, сохранённые в %1, записаны более новой версией этой программы. Они оставлены без изменений. Вы можете заниматься, но всё, что вы сохраните сейчас, пропадёт после выхода из программы. Установите более новую версию.</translation>
    </message>
    <message id="9102s">
        <source></source>
        <translation>Место для сохранённых тренировок, %1, недоступно (%2). Вы можете заниматься, но всё, что вы сохраните сейчас, пропадёт после выхода из программы. Проверьте, существует ли папка и разрешена ли запись в неё, а затем запустите программу снова.</translation>
    </message>
    <message id="9103s">
        <source></source>
        <translation>Тренировки, сохранённые в %1, сейчас использует другая программа, и она не освободила их вовремя. Ничего не изменено. Закройте другую программу и попробуйте ещё раз.</translation>
    </message>
    <message id="9104s">
        <source></source>
        <translation>Тренировки, сохранённые в %1, можно прочитать, но нельзя изменить. Они оставлены без изменений. Вы можете заниматься, но всё, что вы сохраните сейчас, пропадёт после выхода из программы. Разрешите запись в файл и в его папку, а затем запустите программу снова.</translation>
    </message>
    <message id="9105s">
        <source></source>
        <translation>Не удалось сохранить данные в %1: вероятно, диск заполнен (%2). Ранее сохранённые данные целы, а новые хранятся до выхода из программы. Освободите место на диске и сохраните ещё раз.</translation>
    </message>
    <message id="9106s">
        <source></source>
        <translation>Файл с сохранёнными тренировками, %1, повреждён, и прочитать его не удалось. Он оставлен под именем %2, и создан новый, пустой файл. Если у вас есть резервная копия файла, верните её в окне Melvado кнопкой «Восстановить копию…».</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>Одна из сохранённых записей (%1) повреждена, и прочитать её не удалось. Она оставлена под именем %2. Настройки примут обычные значения; все остальные сохранённые данные целы.</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>Сервер с сохранёнными тренировками, %1, сейчас недоступен (%2). Вы можете заниматься. Всё, что вы сохраните сейчас, останется на этом компьютере и будет передано на сервер, как только он вернётся, даже если вы запустите программу в другой день.</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>Тренировки, сохранённые в %1, сейчас не удаётся прочитать (%2). Ничего не изменено. Вы можете заниматься; чтобы продолжить сохранённые тренировки, запустите программу позже.</translation>
    </message>
    <message id="9110s">
        <source></source>
        <translation>Адрес сервера с сохранёнными тренировками (MELVADO_STORE) не удаётся прочитать. Ничего не создано и не изменено. Заниматься можно, но то, что вы сохраните сейчас, пропадёт с концом программы. Запишите его в виде postgresql://пользователь:пароль@компьютер/база и запустите программу снова.</translation>
    </message>
    <message id="9111s">
        <source></source>
        <translation>Сервер с сохранёнными тренировками, %1, недоступен (%2). Вы можете заниматься, но всё, что вы сохраните сейчас, пропадёт после выхода из программы. Сообщите тому, кто обслуживает компьютеры, или запустите программу позже.</translation>
    </message>
    <message id="9112s">
        <source></source>
        <translation>Тренировка, которая хранилась на этом компьютере, пока сервер был недоступен, теперь передана на %1. За это время там была сохранена более новая, она и действует; тренировка с этого компьютера сохранена рядом под именем, которое оканчивается на %2. Вернуть её может тот, кто обслуживает сервер.</translation>
    </message>
    <message id="9113s">
        <source></source>
        <translation>Сохранённое вами сейчас не удалось записать в %1 (%2). Оно хранится на этом компьютере и будет передано туда, как только это станет возможно, даже если вы запустите программу в другой день.</translation>
    </message>
    <message id="9114s">
        <source></source>
        <translation>Пользователя %1, добавленного на этом компьютере, пока сервер был недоступен, не удалось добавить на сервер: номер %2 принадлежит пользователю %3. Проверьте номер и добавьте пользователя ещё раз.</translation>
    </message>
    <message id="9117s">
        <source></source>
        <translation>Файл, в котором этот компьютер хранит то, что сервер ещё не принял, %1, повреждён или создан другой версией программы, и прочитать его не удалось. Он оставлен под именем %2, и создан новый, пустой файл. Сообщите, пожалуйста, тому, кто обслуживает компьютеры.</translation>
    </message>
    <message id="9120s">
        <source></source>
        <translation>Файл %1 не является резервной копией сохранённых тренировок. Ничего не изменено.</translation>
    </message>
    <message id="9121s">
        <source></source>
        <translation>Резервная копия %1 повреждена (%2). Ничего не изменено.</translation>
    </message>
    <message id="9122s">
        <source></source>
        <translation>Резервная копия %1 записана более новой версией этой программы. Ничего не изменено. Установите более новую версию.</translation>
    </message>
    <message id="9123s">
        <source></source>
        <translation>Сохранённые тренировки в %1 использует другая программа. Ничего не изменено. Закройте упражнение и все другие программы, которые их используют, и попробуйте ещё раз.</translation>
    </message>
    <message id="9124s">
        <source></source>
        <translation>Не удалось восстановить резервную копию %1 (%2). То, что было сохранено, осталось как было.</translation>
    </message>
    <message id="9125s">
        <source></source>
        <translation>Файл %1 — тот, что используется сейчас. Выберите его резервную копию.</translation>
    </message>
    <message id="9151s">
        <source></source>
        <translation>Упражнение идёт без звука: файл со звуками инструментов (SoundFont) повреждён: %1. Установите пакет fluid-soundfont-gm заново, а затем запустите программу снова.</translation>
    </message>
    <message id="9152s">
        <source></source>
        <translation>Упражнение идёт без звука: нет файла со звуками инструментов (SoundFont). Установите пакет fluid-soundfont-gm, а затем запустите программу снова.</translation>
    </message>
    <message id="9153s">
        <source></source>
        <translation>Упражнение идёт без звука: не найден вывод звука (испробовано: %1). Проверьте, подключены ли колонки или наушники и выбраны ли они в настройках звука системы, а затем запустите программу снова.</translation>
    </message>
    <message id="9154s">
        <source></source>
        <translation>Вывод звука прервался. Проверьте колонки или наушники и настройки звука системы и попробуйте ещё раз.</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>MIDI-устройство «%1» больше недоступно. Проверьте его кабель и включено ли оно и попробуйте ещё раз.</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>MIDI-устройства с номером %1 нет; всего устройств: %2. Выберите в Melvado другое MIDI-устройство.</translation>
    </message>
    <message id="9157s">
        <source></source>
        <translation>Выбранный файл SoundFont %1 отсутствует или повреждён. Вместо него звучит %2. Выберите в Melvado другой файл SoundFont.</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>Не удалось сохранить протокол занятия в папке %1 (%2). Вместо этого он сохранён как %3. Проверьте, существует ли папка, разрешена ли запись в неё и не заполнен ли диск.</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>Не удалось сохранить протокол занятия ни в папке %1 (%2), ни в собственной папке программы. Освободите место на диске и попробуйте ещё раз или выберите другую папку. До тех пор он хранится, но не дольше, чем до завершения программы.</translation>
    </message>
    <message id="9203s">
        <source></source>
        <translation>Попробовать ещё раз</translation>
    </message>
    <message id="9204s">
        <source></source>
        <translation>Другая папка…</translation>
    </message>
    <message id="9205s">
        <source></source>
        <translation>Отказаться от протокола</translation>
    </message>
    <message id="9206s">
        <source></source>
        <translation>Сохранить протокол</translation>
    </message>
    <message id="9207s">
        <source></source>
        <translation>Не удалось сохранить протокол как %1 (%2).</translation>
    </message>
    <message id="9208s">
        <source></source>
        <translation>Восстановить копию…</translation>
    </message>
    <message id="9209s">
        <source></source>
        <translation>Выбрать резервную копию</translation>
    </message>
    <message id="9210s">
        <source></source>
        <translation>Поставить резервную копию %1 (последнее изменение: %2) на место %3? Пользователи, настройки, тренировки и журнал будут тогда из копии. То, что сохранено сейчас, останется под другим именем.</translation>
    </message>
    <message id="9211s">
        <source></source>
        <translation>Резервная копия %1 восстановлена. То, что было сохранено раньше, оставлено под именем %2.</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>Не удаётся прочитать языковой файл %1, он пропущен. Если он входит в состав программы, установите программу заново.</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>Для языка этой программы не найдены тексты, поэтому вместо них стоит «VOID». Установите программу заново или запустите её на другом языке.</translation>
    </message>
    <message id="9253s">
        <source></source>
        <translation>Языковой файл %1 больше, чем может быть язык (не более %2 КБ), он пропущен.</translation>
    </message>
    <message id="9254s">
        <source></source>
        <translation>Языковой файл %1 требует других файлов, он пропущен. Все слова языка должны быть в одном файле.</translation>
    </message>
    <message id="9255s">
        <source></source>
        <translation>Языковой файл %1 повреждён, он пропущен. Создайте его заново из исходного файла или уберите его из папки.</translation>
    </message>
    <message id="9256s">
        <source></source>
        <translation>Другие языковые файлы содержат ошибки и тоже пропущены: %1.</translation>
    </message>
    <message id="9257s">
        <source></source>
        <translation>Melvado уже открыта, но не отвечает. Если она просто занята, подождите. Завершить её и запустить заново? То, что там ещё не сохранено, может быть потеряно.</translation>
    </message>
    <message id="9258s">
        <source></source>
        <translation>Упражнение уже открыто, но не отвечает. Если оно просто занято, подождите. Завершить его и запустить заново? То, что там ещё не сохранено, может быть потеряно.</translation>
    </message>
    <message id="9259s">
        <source></source>
        <translation>Завершить не удалось. Выйдите из системы на этом компьютере, войдите снова и запустите программу ещё раз.</translation>
    </message>
    <message id="9260s">
        <source></source>
        <translation>Упражнение не отвечает. Если оно просто занято, подождите. Завершить его? То, что там ещё не сохранено, может быть потеряно.</translation>
    </message>
    <message id="9301s">
        <source></source>
        <translation>Не удалось сохранить тренировку. Попробовать ещё раз?</translation>
    </message>
    <message id="9302s">
        <source></source>
        <translation>Принтер не настроен. Страница сохранена как %1.</translation>
    </message>
    <message id="9303s">
        <source></source>
        <translation>Принтер %1 не принял страницу: %2. Проверьте, включён ли он и подключён ли, и напечатайте ещё раз.</translation>
    </message>
    <message id="9304s">
        <source></source>
        <translation>Принтер %1 не готов. Проверьте, включён ли он, подключён ли и есть ли в нём бумага, и напечатайте ещё раз.</translation>
    </message>
    <message id="9305s">
        <source></source>
        <translation>Принтер не настроен, и страницу не удалось сохранить файлом в папке %1 (%2). Проверьте, разрешена ли запись в неё и не заполнен ли диск.</translation>
    </message>
    <message id="9306s">
        <source></source>
        <translation>Звук пропал. Часы стоят, и ничего не засчитывается. Как только звук появится, упражнение продолжится само, а открытое задание прозвучит ещё раз. Проверьте колонки, наушники или MIDI-устройство.</translation>
    </message>
    <message id="9391s">
        <source></source>
        <translation>Содержание</translation>
    </message>
    <message id="9392s">
        <source></source>
        <translation>Назад</translation>
    </message>
    <message id="9393s">
        <source></source>
        <translation>Вперёд</translation>
    </message>
    <message id="9394s">
        <source></source>
        <translation>Страница справки «%1» не найдена. Страницы справки ищутся в: %2</translation>
    </message>
    <message id="9401s">
        <source></source>
        <translation>Развитие слуха</translation>
    </message>
    <message id="9402s">
        <source></source>
        <translation>Кто занимается?</translation>
    </message>
    <message id="9403s">
        <source></source>
        <translation>Никто (без имени)</translation>
    </message>
    <message id="9404s">
        <source></source>
        <translation>Добавить…</translation>
    </message>
    <message id="9405s">
        <source></source>
        <translation>Изменить…</translation>
    </message>
    <message id="9406s">
        <source></source>
        <translation>Удалить…</translation>
    </message>
    <message id="9407s">
        <source></source>
        <translation>Язык</translation>
    </message>
    <message id="9408s">
        <source></source>
        <translation>Вывод звука</translation>
    </message>
    <message id="9409s">
        <source></source>
        <translation>Встроенный синтезатор</translation>
    </message>
    <message id="9410s">
        <source></source>
        <translation>%1 (не подключено)</translation>
    </message>
    <message id="9411s">
        <source></source>
        <translation>Проверить звук</translation>
    </message>
    <message id="9412s">
        <source></source>
        <translation>Выбрать SoundFont…</translation>
    </message>
    <message id="9413s">
        <source></source>
        <translation>SoundFont системы</translation>
    </message>
    <message id="9414s">
        <source></source>
        <translation>SoundFont: %1</translation>
    </message>
    <message id="9415s">
        <source></source>
        <translation>Звучит SoundFont системы.</translation>
    </message>
    <message id="9416s">
        <source></source>
        <translation>Устройство %1 не подключено. Вместо него звучит встроенный синтезатор.</translation>
    </message>
    <message id="9417s">
        <source></source>
        <translation>Играется аккорд…</translation>
    </message>
    <message id="9418s">
        <source></source>
        <translation>Проверка звука играет аккорд и сообщает, что с ним стало.</translation>
    </message>
    <message id="9419s">
        <source></source>
        <translation>Журнал</translation>
    </message>
    <message id="9420s">
        <source></source>
        <translation>Выход</translation>
    </message>
    <message id="9421s">
        <source></source>
        <translation>Справка</translation>
    </message>
    <message id="9422s">
        <source></source>
        <translation>Запускается…</translation>
    </message>
    <message id="9423s">
        <source></source>
        <translation>Новый пользователь</translation>
    </message>
    <message id="9424s">
        <source></source>
        <translation>Изменение данных пользователя</translation>
    </message>
    <message id="9425s">
        <source></source>
        <translation>Фамилия</translation>
    </message>
    <message id="9426s">
        <source></source>
        <translation>Имя</translation>
    </message>
    <message id="9427s">
        <source></source>
        <translation>Номер студенческого билета</translation>
    </message>
    <message id="9428s">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="9429s">
        <source></source>
        <translation>Удалить из списка: %1? Сохранённые тренировки останутся: тот, кого снова добавят с этим номером, продолжит их.</translation>
    </message>
    <message id="9430s">
        <source></source>
        <translation>Файл SoundFont %1 отсутствует. Вместо него звучит SoundFont системы.</translation>
    </message>
    <message id="9431s">
        <source></source>
        <translation>Введите номер студенческого билета: под ним сохраняются тренировки.</translation>
    </message>
    <message id="9432s">
        <source></source>
        <translation>Номер студенческого билета слишком длинный. Наибольшее число знаков: %1.</translation>
    </message>
    <message id="9433s">
        <source></source>
        <translation>Имя слишком длинное. Наибольшее число знаков в фамилии и в имени: %1.</translation>
    </message>
    <message id="9434s">
        <source></source>
        <translation>«%1» не может быть номером студенческого билета. Выберите другой.</translation>
    </message>
    <message id="9435s">
        <source></source>
        <translation>Номер студенческого билета %1 уже есть в списке. Выберите этого пользователя или введите другой номер.</translation>
    </message>
    <message id="9436s">
        <source></source>
        <translation>Файл %1 — не SoundFont, который можно воспроизвести, или он повреждён. SoundFont остаётся прежним.</translation>
    </message>
    <message id="9437s">
        <source></source>
        <translation>Выбор SoundFont</translation>
    </message>
    <message id="9441s">
        <source></source>
        <translation>Из программы не вышло никакого звука.</translation>
    </message>
    <message id="9442s">
        <source></source>
        <translation>Аккорд вышел из программы: встроенный синтезатор сыграл через %2 с файлом SoundFont %3, звуков: %1.</translation>
    </message>
    <message id="9443s">
        <source></source>
        <translation>Аккорд вышел из программы: встроенный синтезатор сыграл через %1 с файлом SoundFont %2 при уровне %3 %.</translation>
    </message>
    <message id="9444s">
        <source></source>
        <translation>Если вы всё же ничего не слышите: включите колонки или наушники, сделайте их громче и выберите их в настройках звука системы.</translation>
    </message>
    <message id="9445s">
        <source></source>
        <translation>Синтезатор не успел подготовиться: компьютер очень занят или файл SoundFont очень большой. Попробуйте ещё раз.</translation>
    </message>
    <message id="9446s">
        <source></source>
        <translation>Вывод %1 открыт, но звук не принял. Возможно, звуковую карту занимает другая программа: закройте её или выберите в настройках звука системы другой вывод.</translation>
    </message>
    <message id="9447s">
        <source></source>
        <translation>В файле SoundFont %1 нет звука фортепиано. Выберите другой файл SoundFont.</translation>
    </message>
    <message id="9448s">
        <source></source>
        <translation>Аккорд вышел из программы: MIDI-устройство «%1» приняло без ошибок сообщений: %2.</translation>
    </message>
    <message id="9449s">
        <source></source>
        <translation>Если вы всё же ничего не слышите: проверьте, включено ли устройство, достаточно ли оно громкое и играет ли то, что приходит по каналу 1.</translation>
    </message>
    <message id="9450s">
        <source></source>
        <translation>MIDI-устройство «%1» недоступно. Проверьте его кабель и включено ли оно или выберите другой вывод.</translation>
    </message>
    <message id="9451s">
        <source></source>
        <translation>Упражнение неожиданно закончилось. Всё, что было сохранено раньше, цело. Показать конец журнала?</translation>
    </message>
    <message id="9452s">
        <source></source>
        <translation>Упражнение уже открыто. После нажатия OK его окно выйдет на передний план.</translation>
    </message>
    <message id="9453s">
        <source></source>
        <translation>Не удалось запустить упражнение (%1). Установите программу заново; если это не поможет, отправьте отчёт об ошибке из журнала.</translation>
    </message>
    <message id="9455s">
        <source></source>
        <translation>Время</translation>
    </message>
    <message id="9456s">
        <source></source>
        <translation>Место</translation>
    </message>
    <message id="9457s">
        <source></source>
        <translation>Номер</translation>
    </message>
    <message id="9458s">
        <source></source>
        <translation>Текст</translation>
    </message>
    <message id="9459s">
        <source></source>
        <translation>Источник</translation>
    </message>
    <message id="9460s">
        <source></source>
        <translation>Обновить</translation>
    </message>
    <message id="9461s">
        <source></source>
        <translation>Скопировать как отчёт об ошибке</translation>
    </message>
    <message id="9462s">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="9463s">
        <source></source>
        <translation>Отчёт находится в буфере обмена, его можно вставить в письмо.</translation>
    </message>
    <message id="9464s">
        <source></source>
        <translation>Журнал пуст.</translation>
    </message>
    <message id="9467s">
        <source></source>
        <translation>Произошла ошибка, которой программа не ожидала (%1). Она записана в журнал; можно продолжать. Отправьте отчёт об ошибке из журнала.</translation>
    </message>
    <message id="9502s">
        <source></source>
        <translation>Тест ещё не закончен. Прервать его без результатов?</translation>
    </message>
    <message id="9531s">
        <source></source>
        <translation>Подготовка звука…</translation>
    </message>
    <message id="9532s">
        <source></source>
        <translation>Ничего не удалось воспроизвести: звуковой выход не готов. Проверьте колонки, наушники или MIDI-устройство и попробуйте ещё раз. Ничего не засчитано.</translation>
    </message>
    <message id="9551s">
        <source></source>
        <translation>Выбрать вид аккорда</translation>
    </message>
    <message id="9552s">
        <source></source>
        <translation>Выбранные виды аккордов</translation>
    </message>
    <message id="9553s">
        <source></source>
        <translation>Выбрать группу аккордов</translation>
    </message>
    <message id="9554s">
        <source></source>
        <translation>Выбранные группы аккордов</translation>
    </message>
    <message id="9555s">
        <source></source>
        <translation>Режим занятий «%1» определяет эти настройки. Они остаются без изменений:</translation>
    </message>
    <message id="9560s">
        <source></source>
        <translation>Аккорды: %1</translation>
    </message>
    <message id="9561s">
        <source></source>
        <translation>Аккорды: %1 из %2, каждый раз случайные</translation>
    </message>
    <message id="9562s">
        <source></source>
        <translation>Задания: %1, не дольше %2 мин</translation>
    </message>
    <message id="9563s">
        <source></source>
        <translation>Ещё выбрать: виды аккордов (минимум 1)</translation>
    </message>
    <message id="9564s">
        <source></source>
        <translation>Ещё выбрать: группы аккордов (%1 из минимум %2)</translation>
    </message>
    <message id="9565s">
        <source></source>
        <translation>Проверка звука: только при полном выборе</translation>
    </message>
    <message id="9566s">
        <source></source>
        <translation>Проверка звука: только после » (все группы)</translation>
    </message>
    <message id="9567s">
        <source></source>
        <translation>Звучит пример: OK и проверка звука ждут его окончания</translation>
    </message>
    <message id="9601s">
        <source></source>
        <translation>Открыть тест</translation>
    </message>
    <message id="9602s">
        <source></source>
        <translation>Сохранить настройки</translation>
    </message>
    <message id="9603s">
        <source></source>
        <translation>Фамилия:</translation>
    </message>
    <message id="9604s">
        <source></source>
        <translation>Имя:</translation>
    </message>
    <message id="9605s">
        <source></source>
        <translation>№ студента:</translation>
    </message>
    <message id="9606s">
        <source></source>
        <translation>Экзамен</translation>
    </message>
    <message id="9611s">
        <source></source>
        <translation>Файл или его папка не существует.</translation>
    </message>
    <message id="9612s">
        <source></source>
        <translation>Доступ к файлу запрещён.</translation>
    </message>
    <message id="9613s">
        <source></source>
        <translation>Это папка, а не файл.</translation>
    </message>
    <message id="9614s">
        <source></source>
        <translation>Диск заполнен.</translation>
    </message>
    <message id="9615s">
        <source></source>
        <translation>Система сообщает: %1.</translation>
    </message>
    <message id="9616s">
        <source></source>
        <translation>Это не файл, который можно прочитать.</translation>
    </message>
    <message id="9617s">
        <source></source>
        <translation>Файл слишком велик для теста.</translation>
    </message>
    <message id="9618s">
        <source></source>
        <translation>Тест слишком велик для файла.</translation>
    </message>
    <message id="9619s">
        <source></source>
        <translation>Один из символов не удаётся прочитать.</translation>
    </message>
    <message id="9620s">
        <source></source>
        <translation>Текст не является правильно построенным XML.</translation>
    </message>
    <message id="9621s">
        <source></source>
        <translation>Корневой элемент — не «%1».</translation>
    </message>
    <message id="9622s">
        <source></source>
        <translation>Есть второй корневой элемент.</translation>
    </message>
    <message id="9623s">
        <source></source>
        <translation>В «%1» нет элемента «%2».</translation>
    </message>
    <message id="9624s">
        <source></source>
        <translation>В «%1» нет атрибута «%2».</translation>
    </message>
    <message id="9625s">
        <source></source>
        <translation>В «%1» нет целого числа.</translation>
    </message>
    <message id="9631s">
        <source></source>
        <translation>Эта страница справки на английском языке.</translation>
    </message>
    <message id="9633s">
        <source></source>
        <translation>… и ещё %1</translation>
    </message>
    <message id="9634s">
        <source></source>
        <translation>Эту страницу справки нельзя показать: она слишком велика или имеет слишком глубокую вложенность.</translation>
    </message>
    <message id="9635s">
        <source></source>
        <translation>Имя папки для сохранённых тренировок, %1, не в UTF-8, и сохранить там ничего нельзя. Вы можете заниматься, но то, что вы сохраните сейчас, пропадёт по окончании программы. Укажите другое место в MELVADO_STORE.</translation>
    </message>
    <message id="9681s">
        <source></source>
        <translation>войсинг</translation>
    </message>
    <message id="9682s">
        <source></source>
        <translation>%1: без ответа</translation>
    </message>
    <message id="9683s">
        <source></source>
        <translation>%1: верно, %2</translation>
    </message>
    <message id="9684s">
        <source></source>
        <translation>%1: неверно, ещё без ответа</translation>
    </message>
    <message id="9685s">
        <source></source>
        <translation>%1: не распознан, решение: %2</translation>
    </message>
    <message id="9721s">
        <source></source>
        <translation>Решение: %1</translation>
    </message>
    <message id="9722s">
        <source></source>
        <translation>Аккорд %1 из %2</translation>
    </message>
    <message id="9723s">
        <source></source>
        <translation>Отвечайте, пожалуйста</translation>
    </message>
    <message id="9724s">
        <source></source>
        <translation>Конец задания, решено %1 из %2</translation>
    </message>
    <message id="9726s">
        <source></source>
        <translation>Конец тренировки: %1</translation>
    </message>
    <message id="9727s">
        <source></source>
        <translation>Конец теста</translation>
    </message>
    <message id="9728s">
        <source></source>
        <translation>Время истекло</translation>
    </message>
    <message id="9731s">
        <source></source>
        <translation>%1: из «%2» в «%3»</translation>
    </message>
    <message id="9732s">
        <source></source>
        <translation>все из «%1» в «%2»</translation>
    </message>
</context>
</TS>
