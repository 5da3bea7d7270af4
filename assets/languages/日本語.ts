<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Melvado authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<TS version="2.1" language="ja_JP">
<context>
    <name></name>
    <message id="1s">
        <source></source>
        <translation>印刷</translation>
    </message>
    <message id="2s">
        <source></source>
        <translation>（4～7音のコードとヴォイシング用）</translation>
    </message>
    <message id="6s">
        <source></source>
        <extracomment>first part of the version line, before 699 and the number</extracomment>
        <translation>vmod17</translation>
    </message>
    <message id="8s">
        <source></source>
        <extracomment>second line of the question 495</extracomment>
        <translation>（以前に保存した進捗は上書きされます。）</translation>
    </message>
    <message id="41s">
        <source></source>
        <extracomment>a number from 2 to 5 stands before it</extracomment>
        <translation>オクターブ</translation>
    </message>
    <message id="45s">
        <source></source>
        <translation>両手ヴォイシング</translation>
    </message>
    <message id="49s">
        <source></source>
        <translation>3～7音のコード</translation>
    </message>
    <message id="51s">
        <source></source>
        <translation>トライアド</translation>
    </message>
    <message id="56s">
        <source></source>
        <translation>4～7音のコード／両手ヴォイシング：コードのグループを答える</translation>
    </message>
    <message id="57s">
        <source></source>
        <translation>4音コード</translation>
    </message>
    <message id="60s">
        <source></source>
        <translation>5音コード</translation>
    </message>
    <message id="62s">
        <source></source>
        <translation>6音コード</translation>
    </message>
    <message id="64s">
        <source></source>
        <translation>7音コード</translation>
    </message>
    <message id="78s">
        <source></source>
        <extracomment>how one task follows another</extracomment>
        <translation>出題方法</translation>
    </message>
    <message id="84s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>下行</translation>
    </message>
    <message id="87s">
        <source></source>
        <extracomment>whether the root is accented</extracomment>
        <translation>コードのルート</translation>
    </message>
    <message id="88s">
        <source></source>
        <extracomment>chords in one task</extracomment>
        <translation>コードの数</translation>
    </message>
    <message id="95s">
        <source></source>
        <extracomment>heading of the list of chords; 700 follows</extracomment>
        <translation>コード</translation>
    </message>
    <message id="97s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>コード</translation>
    </message>
    <message id="107s">
        <source></source>
        <translation>音域</translation>
    </message>
    <message id="109s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>ユーザー</translation>
    </message>
    <message id="114s">
        <source></source>
        <translation>コード表示</translation>
    </message>
    <message id="116s">
        <source></source>
        <translation>アルペジオの速さ</translation>
    </message>
    <message id="129s">
        <source></source>
        <extracomment>" 1" follows</extracomment>
        <translation>問題</translation>
    </message>
    <message id="130s">
        <source></source>
        <translation>トレーニング完了</translation>
    </message>
    <message id="133s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>上行</translation>
    </message>
    <message id="135s">
        <source></source>
        <translation>選択済み</translation>
    </message>
    <message id="136s">
        <source></source>
        <translation>自由練習</translation>
    </message>
    <message id="138s">
        <source></source>
        <translation>出題範囲</translation>
    </message>
    <message id="139s">
        <source></source>
        <extracomment>on the OK button while the selection is incomplete</extracomment>
        <translation>未選択??</translation>
    </message>
    <message id="140s">
        <source></source>
        <translation>選択可能</translation>
    </message>
    <message id="141s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>選択可能</translation>
    </message>
    <message id="142s">
        <source></source>
        <extracomment>the tasks follow by themselves</extracomment>
        <translation>自動</translation>
    </message>
    <message id="153s">
        <source></source>
        <translation>音の範囲</translation>
    </message>
    <message id="154s">
        <source></source>
        <translation>聴き取り</translation>
    </message>
    <message id="156s">
        <source></source>
        <translation>強調あり</translation>
    </message>
    <message id="160s">
        <source></source>
        <translation>組み立て</translation>
    </message>
    <message id="189s">
        <source></source>
        <extracomment>a blank and 700 follow</extracomment>
        <translation>日付</translation>
    </message>
    <message id="194s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>直接</translation>
    </message>
    <message id="196s">
        <source></source>
        <translation>保存した設定を読み込めません。新しいトレーニングを始めてください。</translation>
    </message>
    <message id="199s">
        <source></source>
        <extracomment>short form of 201 for a small label</extracomment>
        <translation>ドミナント alt.</translation>
    </message>
    <message id="200s">
        <source></source>
        <translation>ドミナント7th</translation>
    </message>
    <message id="201s">
        <source></source>
        <translation>ドミナント7th, alt.</translation>
    </message>
    <message id="221s">
        <source></source>
        <extracomment>window title of the settings screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> 設定</translation>
    </message>
    <message id="223s">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="224s">
        <source></source>
        <extracomment>window title of the results screen, after 348 and 700; begins with the blank after 700</extracomment>
        <translation> 結果</translation>
    </message>
    <message id="232s">
        <source></source>
        <translation>不正解</translation>
    </message>
    <message id="238s">
        <source></source>
        <translation>固定（A = 440 Hz）</translation>
    </message>
    <message id="243s">
        <source></source>
        <translation>チューニング</translation>
    </message>
    <message id="275s">
        <source></source>
        <translation>総合結果</translation>
    </message>
    <message id="277s">
        <source></source>
        <extracomment>of the root of the tasks and of the timbre</extracomment>
        <translation>一定</translation>
    </message>
    <message id="278s">
        <source></source>
        <translation>同時（アルペジオなし）</translation>
    </message>
    <message id="287s">
        <source></source>
        <extracomment>window title of the first screen, after 347 and 700; begins with the blank after 700</extracomment>
        <translation> 開始</translation>
    </message>
    <message id="297s">
        <source></source>
        <translation>ルート</translation>
    </message>
    <message id="301s">
        <source></source>
        <extracomment>what is asked for</extracomment>
        <translation>グループ</translation>
    </message>
    <message id="302s">
        <source></source>
        <translation>コードのグループ</translation>
    </message>
    <message id="312s">
        <source></source>
        <translation>ハーフディム</translation>
    </message>
    <message id="319s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>高い</translation>
    </message>
    <message id="347s">
        <source></source>
        <extracomment>title of the module</extracomment>
        <translation>ジャズコードの聴き取り</translation>
    </message>
    <message id="348s">
        <source></source>
        <extracomment>title of the exercise</extracomment>
        <translation>ジャズコードの聴き取り</translation>
    </message>
    <message id="364s">
        <source></source>
        <translation>コードの音数</translation>
    </message>
    <message id="365s">
        <source></source>
        <translation>音色</translation>
    </message>
    <message id="366s">
        <source></source>
        <translation>試聴</translation>
    </message>
    <message id="371s">
        <source></source>
        <translation>遅い</translation>
    </message>
    <message id="372s">
        <source></source>
        <translation>音量</translation>
    </message>
    <message id="374s">
        <source></source>
        <extracomment>a number follows</extracomment>
        <translation>番号:</translation>
    </message>
    <message id="379s">
        <source></source>
        <translation>メジャー7th</translation>
    </message>
    <message id="380s">
        <source></source>
        <translation>メジャー7th, alt.</translation>
    </message>
    <message id="383s">
        <source></source>
        <extracomment>the next task is asked for</extracomment>
        <translation>手動</translation>
    </message>
    <message id="394s">
        <source></source>
        <translation>分</translation>
    </message>
    <message id="395s">
        <source></source>
        <translation>1つ以上選択！</translation>
    </message>
    <message id="396s">
        <source></source>
        <translation>2つ以上選択！</translation>
    </message>
    <message id="400s">
        <source></source>
        <translation>普通</translation>
    </message>
    <message id="409s">
        <source></source>
        <translation>マイナー7th</translation>
    </message>
    <message id="410s">
        <source></source>
        <translation>トニックマイナー</translation>
    </message>
    <message id="420s">
        <source></source>
        <translation>次の問題</translation>
    </message>
    <message id="424s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>低い</translation>
    </message>
    <message id="426s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>No.</translation>
    </message>
    <message id="429s">
        <source></source>
        <translation>コードネームのみ</translation>
    </message>
    <message id="432s">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="438s">
        <source></source>
        <translation>試験</translation>
    </message>
    <message id="461s">
        <source></source>
        <extracomment>the minutes with 394 and the seconds with 480 follow</extracomment>
        <translation>残り時間:</translation>
    </message>
    <message id="462s">
        <source></source>
        <extracomment>a blank and a number follow</extracomment>
        <translation>残り問題数:</translation>
    </message>
    <message id="468s">
        <source></source>
        <translation>正解</translation>
    </message>
    <message id="469s">
        <source></source>
        <extracomment>of an arpeggio</extracomment>
        <translation>方向</translation>
    </message>
    <message id="470s">
        <source></source>
        <translation>速い</translation>
    </message>
    <message id="476s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>とても高い</translation>
    </message>
    <message id="477s">
        <source></source>
        <translation>とても遅い</translation>
    </message>
    <message id="478s">
        <source></source>
        <extracomment>not shown at present</extracomment>
        <translation>とても低い</translation>
    </message>
    <message id="479s">
        <source></source>
        <translation>とても速い</translation>
    </message>
    <message id="480s">
        <source></source>
        <translation>秒</translation>
    </message>
    <message id="495s">
        <source></source>
        <translation>トレーニングの進捗を保存しますか？</translation>
    </message>
    <message id="496s">
        <source></source>
        <translation>演奏</translation>
    </message>
    <message id="499s">
        <source></source>
        <extracomment>a number from 1 to 7 follows</extracomment>
        <translation>声部</translation>
    </message>
    <message id="507s">
        <source></source>
        <translation>音符＋コードネーム</translation>
    </message>
    <message id="547s">
        <source></source>
        <translation>テンポ</translation>
    </message>
    <message id="550s">
        <source></source>
        <translation>テスト</translation>
    </message>
    <message id="551s">
        <source></source>
        <translation>テスト状況を表示</translation>
    </message>
    <message id="552s">
        <source></source>
        <translation>テスト状況を隠す</translation>
    </message>
    <message id="564s">
        <source></source>
        <translation>トレーニング（新規）</translation>
    </message>
    <message id="565s">
        <source></source>
        <translation>トレーニング（続き）</translation>
    </message>
    <message id="566s">
        <source></source>
        <translation>トレーニングの進捗</translation>
    </message>
    <message id="586s">
        <source></source>
        <translation>練習の種類</translation>
    </message>
    <message id="587s">
        <source></source>
        <translation>練習モード</translation>
    </message>
    <message id="588s">
        <source></source>
        <translation>強調なし</translation>
    </message>
    <message id="589s">
        <source></source>
        <extracomment>each voice has a timbre of its own</extracomment>
        <translation>声部ごと</translation>
    </message>
    <message id="603s">
        <source></source>
        <translation>可変</translation>
    </message>
    <message id="609s">
        <source></source>
        <translation>ディミニッシュ</translation>
    </message>
    <message id="615s">
        <source></source>
        <translation>下から上へ</translation>
    </message>
    <message id="623s">
        <source></source>
        <extracomment>of the root of the tasks</extracomment>
        <translation>変化</translation>
    </message>
    <message id="624s">
        <source></source>
        <extracomment>direction of an arpeggio</extracomment>
        <translation>ランダム</translation>
    </message>
    <message id="625s">
        <source></source>
        <translation>次へ</translation>
    </message>
    <message id="629s">
        <source></source>
        <translation>もう一度</translation>
    </message>
    <message id="632s">
        <source></source>
        <translation>もう一度（確認）</translation>
    </message>
    <message id="638s">
        <source></source>
        <translation>難しすぎます！</translation>
    </message>
    <message id="640s">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="671s">
        <source></source>
        <extracomment>MIDI note 36</extracomment>
        <translation>C2</translation>
    </message>
    <message id="672s">
        <source></source>
        <extracomment>MIDI note 48</extracomment>
        <translation>C3</translation>
    </message>
    <message id="673s">
        <source></source>
        <extracomment>MIDI note 60</extracomment>
        <translation>C4</translation>
    </message>
    <message id="674s">
        <source></source>
        <extracomment>MIDI note 72</extracomment>
        <translation>C5</translation>
    </message>
    <message id="675s">
        <source></source>
        <extracomment>MIDI note 84</extracomment>
        <translation>C6</translation>
    </message>
    <message id="676s">
        <source></source>
        <extracomment>MIDI note 96</extracomment>
        <translation>C7</translation>
    </message>
    <message id="699s">
        <source></source>
        <extracomment>the version number follows</extracomment>
        <translation>バージョン</translation>
    </message>
    <message id="700s">
        <source></source>
        <extracomment>stands between the two parts of a window title and after the heading 95</extracomment>
        <translation>:</translation>
    </message>
    <message id="702s">
        <source></source>
        <extracomment>between two notes</extracomment>
        <translation>～</translation>
    </message>
    <message id="720s">
        <source></source>
        <extracomment>first of four lines of one message</extracomment>
        <translation>申し訳ありません。エラーが発生しました。</translation>
    </message>
    <message id="721s">
        <source></source>
        <extracomment>second of four lines</extracomment>
        <translation>エラーの内容は Melvado のログに記録されています。</translation>
    </message>
    <message id="722s">
        <source></source>
        <extracomment>third of four lines</extracomment>
        <translation>現在の操作を中止し、ウィンドウを閉じます。</translation>
    </message>
    <message id="723s">
        <source></source>
        <extracomment>last of four lines</extracomment>
        <translation>もう一度お試しください。それでも解決しないときは、先生に相談してください。</translation>
    </message>
    <message id="726s">
        <source></source>
        <translation>少々お待ちください</translation>
    </message>
    <message id="9001s">
        <source></source>
        <translation>はい</translation>
    </message>
    <message id="9002s">
        <source></source>
        <translation>いいえ</translation>
    </message>
    <message id="9003s">
        <source></source>
        <translation>プログラムに回復できないエラーが発生したため、終了します。</translation>
    </message>
    <message id="9011s">
        <source></source>
        <translation>テスト用に指定された枠がありません。テストで設定を固定したい枠を右クリックし、「試験」を選んでください。</translation>
    </message>
    <message id="9012s">
        <source></source>
        <translation>テストファイルを書き込めませんでした。</translation>
    </message>
    <message id="9013s">
        <source></source>
        <translation>テストファイルを読み込めません。設定は変更されていません。</translation>
    </message>
    <message id="9014s">
        <source></source>
        <translation>行</translation>
    </message>
    <message id="9015s">
        <source></source>
        <translation>列</translation>
    </message>
    <message id="9016s">
        <source></source>
        <translation>テストファイルにある次の設定はここには存在しないため、無視されました:</translation>
    </message>
    <message id="9017s">
        <source></source>
        <translation>すべて選択</translation>
    </message>
    <message id="9018s">
        <source></source>
        <translation>すべて解除</translation>
    </message>
    <message id="9101s">
        <source></source>
        <translation>%1 に保存されているトレーニングは、このプログラムの新しいバージョンで作成されたものです。内容には一切手を加えていません。練習はできますが、今から保存するものはプログラムを終了すると失われます。新しいバージョンをインストールしてください。</translation>
    </message>
    <message id="9102s">
        <source></source>
        <translation>トレーニングの保存場所 %1 を使用できません（%2）。練習はできますが、今から保存するものはプログラムを終了すると失われます。フォルダーがあるか、書き込みが許可されているかを確認してから、プログラムを起動し直してください。</translation>
    </message>
    <message id="9103s">
        <source></source>
        <translation>%1 に保存されているトレーニングを別のプログラムが使用中で、時間内に解放されませんでした。何も変更されていません。そのプログラムを閉じてから、もう一度お試しください。</translation>
    </message>
    <message id="9104s">
        <source></source>
        <translation>%1 に保存されているトレーニングは、読み込めますが変更できません。内容はそのまま残っています。練習はできますが、今から保存するものはプログラムを終了すると失われます。ファイルとそのフォルダーを書き込み可能にしてから、プログラムを起動し直してください。</translation>
    </message>
    <message id="9105s">
        <source></source>
        <translation>%1 に保存できませんでした。ディスクがいっぱいの可能性があります（%2）。以前に保存したものは残っています。新しいものも、プログラムを終了するまでは保持されます。ディスクの空き容量を増やしてから、もう一度保存してください。</translation>
    </message>
    <message id="9106s">
        <source></source>
        <translation>トレーニングを保存したファイル %1 が破損しており、読み込めませんでした。このファイルは %2 という名前で残し、新しい空のファイルを作成しました。バックアップがあれば、Melvado のウィンドウの「バックアップから復元…」で元に戻せます。</translation>
    </message>
    <message id="9107s">
        <source></source>
        <translation>保存されている記録の 1 つ（%1）が破損しており、読み込めませんでした。この記録は %2 という名前で残してあります。設定は標準の値から始まります。そのほかの保存内容は残っています。</translation>
    </message>
    <message id="9108s">
        <source></source>
        <translation>トレーニングを保存しているサーバー %1 に接続できません（%2）。練習はできます。今から保存するものはこのコンピューターに保管され、サーバーが復旧しだい、別の日にプログラムを起動した場合でも、サーバーに送られます。</translation>
    </message>
    <message id="9109s">
        <source></source>
        <translation>%1 に保存されているトレーニングを現在読み込めません（%2）。何も変更されていません。練習はできます。保存したトレーニングを続けるには、しばらくしてからプログラムを起動し直してください。</translation>
    </message>
    <message id="9110s">
        <source></source>
        <translation>保存されたトレーニングのサーバーのアドレス（MELVADO_STORE）を読み取れません。何も作成も変更もされていません。練習はできますが、今保存したものはプログラムの終了時に失われます。postgresql://ユーザー:パスワード@ホスト/データベース の形で書いてから、プログラムを再起動してください。</translation>
    </message>
    <message id="9111s">
        <source></source>
        <translation>トレーニングを保存しているサーバー %1 を使用できません（%2）。練習はできますが、今から保存するものはプログラムを終了すると失われます。コンピューターの管理者に知らせるか、しばらくしてからプログラムを起動し直してください。</translation>
    </message>
    <message id="9112s">
        <source></source>
        <translation>サーバーに接続できない間このコンピューターに保管されていたトレーニングを、%1 に送りました。その間にサーバーにはより新しいトレーニングが保存されており、そちらが有効です。このコンピューターのものは、末尾が %2 の名前でその横に保管されています。サーバーの管理者が元に戻せます。</translation>
    </message>
    <message id="9113s">
        <source></source>
        <translation>保存したものは、現在 %1 に書き込めません（%2）。このコンピューターに保管され、書き込めるようになりしだい、別の日にプログラムを起動した場合でも、そちらに送られます。</translation>
    </message>
    <message id="9114s">
        <source></source>
        <translation>サーバーに接続できない間にこのコンピューターで追加された %1 は、サーバーに追加できませんでした。番号 %2 は %3 のものです。番号を確認して、もう一度追加してください。</translation>
    </message>
    <message id="9117s">
        <source></source>
        <translation>サーバーにまだ送られていないものをこのコンピューターで保管するファイル %1 が破損しているか、このプログラムの別のバージョンのもののため、読み込めませんでした。このファイルは %2 という名前で残し、新しい空のファイルを作成しました。コンピューターの管理者に知らせてください。</translation>
    </message>
    <message id="9120s">
        <source></source>
        <translation>ファイル %1 は保存されたトレーニングのバックアップではありません。何も変更していません。</translation>
    </message>
    <message id="9121s">
        <source></source>
        <translation>バックアップ %1 は破損しています（%2）。何も変更していません。</translation>
    </message>
    <message id="9122s">
        <source></source>
        <translation>バックアップ %1 は、このプログラムの新しいバージョンで書かれたものです。何も変更していません。新しいバージョンをインストールしてください。</translation>
    </message>
    <message id="9123s">
        <source></source>
        <translation>別のプログラムが %1 に保存されたトレーニングを使用しています。何も変更していません。練習とそれを使用しているほかのプログラムを閉じて、もう一度試してください。</translation>
    </message>
    <message id="9124s">
        <source></source>
        <translation>バックアップ %1 を復元できませんでした（%2）。保存されていた内容は元のまま残っています。</translation>
    </message>
    <message id="9125s">
        <source></source>
        <translation>ファイル %1 は現在使用中のファイルです。そのバックアップを選んでください。</translation>
    </message>
    <message id="9151s">
        <source></source>
        <translation>音が出ません。楽器の音のファイル（サウンドフォント）が破損しています: %1。パッケージ fluid-soundfont-gm を再インストールしてから、プログラムを起動し直してください。</translation>
    </message>
    <message id="9152s">
        <source></source>
        <translation>音が出ません。楽器の音のファイル（サウンドフォント）がありません。パッケージ fluid-soundfont-gm をインストールしてから、プログラムを起動し直してください。</translation>
    </message>
    <message id="9153s">
        <source></source>
        <translation>音が出ません。音声出力が見つかりませんでした（試した出力: %1）。スピーカーまたはヘッドホンが接続され、システムのサウンド設定で選択されているかを確認してから、プログラムを起動し直してください。</translation>
    </message>
    <message id="9154s">
        <source></source>
        <translation>音声出力が停止しました。スピーカーまたはヘッドホンと、システムのサウンド設定を確認して、もう一度お試しください。</translation>
    </message>
    <message id="9155s">
        <source></source>
        <translation>MIDI 機器「%1」が見つからなくなりました。ケーブルと電源を確認して、もう一度お試しください。</translation>
    </message>
    <message id="9156s">
        <source></source>
        <translation>%1 番の MIDI 機器はありません。使用できる機器は %2 台です。Melvado で別の MIDI 機器を選んでください。</translation>
    </message>
    <message id="9157s">
        <source></source>
        <translation>選択されたサウンドフォント %1 がないか、破損しています。代わりに %2 の音で演奏します。Melvado で別のサウンドフォントを選んでください。</translation>
    </message>
    <message id="9201s">
        <source></source>
        <translation>練習の記録をフォルダー %1 に保存できませんでした（%2）。代わりに %3 として保存しました。フォルダーがあるか、書き込みが許可されているか、ディスクがいっぱいでないかを確認してください。</translation>
    </message>
    <message id="9202s">
        <source></source>
        <translation>練習の記録を、フォルダー %1（%2）にもプログラム自身のフォルダーにも保存できませんでした。ディスクの空き容量を増やしてもう一度試すか、別のフォルダーを選んでください。それまで記録は残りますが、プログラムが終了すると失われます。</translation>
    </message>
    <message id="9203s">
        <source></source>
        <translation>もう一度試す</translation>
    </message>
    <message id="9204s">
        <source></source>
        <translation>別のフォルダー…</translation>
    </message>
    <message id="9205s">
        <source></source>
        <translation>記録をあきらめる</translation>
    </message>
    <message id="9206s">
        <source></source>
        <translation>記録を保存</translation>
    </message>
    <message id="9207s">
        <source></source>
        <translation>記録を %1 として保存できませんでした（%2）。</translation>
    </message>
    <message id="9208s">
        <source></source>
        <translation>バックアップから復元…</translation>
    </message>
    <message id="9209s">
        <source></source>
        <translation>バックアップを選択</translation>
    </message>
    <message id="9210s">
        <source></source>
        <translation>バックアップ %1（最終更新：%2）を %3 の代わりに置きますか？ユーザー、設定、トレーニング、ログはバックアップのものになります。現在保存されている内容は別の名前で残します。</translation>
    </message>
    <message id="9211s">
        <source></source>
        <translation>バックアップ %1 を復元しました。以前に保存されていた内容は %2 という名前で残しました。</translation>
    </message>
    <message id="9251s">
        <source></source>
        <translation>言語ファイル %1 を読み込めないため、使用しません。プログラムに付属のファイルであれば、プログラムを再インストールしてください。</translation>
    </message>
    <message id="9252s">
        <source></source>
        <translation>このプログラムの言語の文字列が見つからないため、代わりに「VOID」と表示されています。プログラムを再インストールするか、別の言語で起動してください。</translation>
    </message>
    <message id="9253s">
        <source></source>
        <translation>言語ファイル %1 は大きすぎるため（最大 %2 KB）、使用しません。</translation>
    </message>
    <message id="9254s">
        <source></source>
        <translation>言語ファイル %1 は別のファイルを必要とするため、使用しません。1 つの言語のすべての語は 1 つのファイルに入れてください。</translation>
    </message>
    <message id="9255s">
        <source></source>
        <translation>言語ファイル %1 は壊れているため、使用しません。元のファイルから作り直すか、フォルダーから取り除いてください。</translation>
    </message>
    <message id="9256s">
        <source></source>
        <translation>ほかの言語ファイルにも誤りがあり、同じく使用しません：%1。</translation>
    </message>
    <message id="9257s">
        <source></source>
        <translation>Melvado はすでに開いていますが、応答しません。処理中なだけの場合は、しばらくお待ちください。終了して再起動しますか？ そこでまだ保存されていない内容は失われることがあります。</translation>
    </message>
    <message id="9258s">
        <source></source>
        <translation>練習はすでに開いていますが、応答しません。処理中なだけの場合は、しばらくお待ちください。終了して再起動しますか？ そこでまだ保存されていない内容は失われることがあります。</translation>
    </message>
    <message id="9259s">
        <source></source>
        <translation>終了できませんでした。このコンピューターからいったんサインアウトし、サインインし直してから、もう一度プログラムを起動してください。</translation>
    </message>
    <message id="9260s">
        <source></source>
        <translation>練習が応答しません。処理中なだけの場合は、しばらくお待ちください。終了しますか？ そこでまだ保存されていない内容は失われることがあります。</translation>
    </message>
    <message id="9301s">
        <source></source>
        <translation>トレーニングを保存できませんでした。もう一度試しますか？</translation>
    </message>
    <message id="9302s">
        <source></source>
        <translation>プリンターが設定されていません。ページを %1 として保存しました。</translation>
    </message>
    <message id="9303s">
        <source></source>
        <translation>プリンター %1 がページを受け付けませんでした: %2。電源と接続を確認してから、もう一度印刷してください。</translation>
    </message>
    <message id="9304s">
        <source></source>
        <translation>プリンター %1 の準備ができていません。電源、接続、用紙を確認してから、もう一度印刷してください。</translation>
    </message>
    <message id="9305s">
        <source></source>
        <translation>プリンターが設定されておらず、ページをフォルダー %1 にファイルとして保存することもできませんでした（%2）。書き込みが許可されているか、ディスクがいっぱいでないかを確認してください。</translation>
    </message>
    <message id="9306s">
        <source></source>
        <translation>音が出なくなりました。時計は止まっており、何も数えられません。音が戻ると練習は自動的に続き、途中の課題がもう一度鳴ります。スピーカー、ヘッドホン、または MIDI 機器を確認してください。</translation>
    </message>
    <message id="9391s">
        <source></source>
        <translation>目次</translation>
    </message>
    <message id="9392s">
        <source></source>
        <translation>戻る</translation>
    </message>
    <message id="9393s">
        <source></source>
        <translation>進む</translation>
    </message>
    <message id="9394s">
        <source></source>
        <translation>ヘルプのページ「%1」が見つかりませんでした。ヘルプのページを探す場所: %2</translation>
    </message>
    <message id="9401s">
        <source></source>
        <translation>聴音トレーニング</translation>
    </message>
    <message id="9402s">
        <source></source>
        <translation>練習する人</translation>
    </message>
    <message id="9403s">
        <source></source>
        <translation>なし（名前を使わない）</translation>
    </message>
    <message id="9404s">
        <source></source>
        <translation>追加…</translation>
    </message>
    <message id="9405s">
        <source></source>
        <translation>変更…</translation>
    </message>
    <message id="9406s">
        <source></source>
        <translation>削除…</translation>
    </message>
    <message id="9407s">
        <source></source>
        <translation>言語</translation>
    </message>
    <message id="9408s">
        <source></source>
        <translation>音声出力</translation>
    </message>
    <message id="9409s">
        <source></source>
        <translation>内蔵シンセサイザー</translation>
    </message>
    <message id="9410s">
        <source></source>
        <translation>%1（未接続）</translation>
    </message>
    <message id="9411s">
        <source></source>
        <translation>音をテスト</translation>
    </message>
    <message id="9412s">
        <source></source>
        <translation>サウンドフォントを選択…</translation>
    </message>
    <message id="9413s">
        <source></source>
        <translation>システムのサウンドフォント</translation>
    </message>
    <message id="9414s">
        <source></source>
        <translation>サウンドフォント: %1</translation>
    </message>
    <message id="9415s">
        <source></source>
        <translation>システムのサウンドフォントで演奏します。</translation>
    </message>
    <message id="9416s">
        <source></source>
        <translation>%1 が接続されていません。代わりに内蔵シンセサイザーで演奏します。</translation>
    </message>
    <message id="9417s">
        <source></source>
        <translation>コードを演奏しています…</translation>
    </message>
    <message id="9418s">
        <source></source>
        <translation>音のテストでは、コードを 1 つ演奏し、その結果をお知らせします。</translation>
    </message>
    <message id="9419s">
        <source></source>
        <translation>ログ</translation>
    </message>
    <message id="9420s">
        <source></source>
        <translation>終了</translation>
    </message>
    <message id="9421s">
        <source></source>
        <translation>ヘルプ</translation>
    </message>
    <message id="9422s">
        <source></source>
        <translation>起動しています…</translation>
    </message>
    <message id="9423s">
        <source></source>
        <translation>ユーザーの追加</translation>
    </message>
    <message id="9424s">
        <source></source>
        <translation>ユーザーの変更</translation>
    </message>
    <message id="9425s">
        <source></source>
        <translation>姓</translation>
    </message>
    <message id="9426s">
        <source></source>
        <translation>名</translation>
    </message>
    <message id="9427s">
        <source></source>
        <translation>学籍番号</translation>
    </message>
    <message id="9428s">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="9429s">
        <source></source>
        <translation>%1 を一覧から削除しますか？保存されたトレーニングは残ります。この番号でもう一度追加すると、続きから練習できます。</translation>
    </message>
    <message id="9430s">
        <source></source>
        <translation>サウンドフォント %1 がありません。代わりにシステムのサウンドフォントで演奏します。</translation>
    </message>
    <message id="9431s">
        <source></source>
        <translation>学籍番号を入力してください。トレーニングはこの番号で保存されます。</translation>
    </message>
    <message id="9432s">
        <source></source>
        <translation>学籍番号が長すぎます。%1 文字まで入力できます。</translation>
    </message>
    <message id="9433s">
        <source></source>
        <translation>名前が長すぎます。姓と名はそれぞれ %1 文字まで入力できます。</translation>
    </message>
    <message id="9434s">
        <source></source>
        <translation>「%1」は学籍番号として使えません。別の番号を選んでください。</translation>
    </message>
    <message id="9435s">
        <source></source>
        <translation>学籍番号 %1 はすでに一覧にあります。そのユーザーを選ぶか、別の番号を入力してください。</translation>
    </message>
    <message id="9436s">
        <source></source>
        <translation>ファイル %1 は演奏できるサウンドフォントではないか、破損しています。サウンドフォントは変更されていません。</translation>
    </message>
    <message id="9437s">
        <source></source>
        <translation>サウンドフォントの選択</translation>
    </message>
    <message id="9441s">
        <source></source>
        <translation>プログラムから音が出力されませんでした。</translation>
    </message>
    <message id="9442s">
        <source></source>
        <translation>コードは出力されました。内蔵シンセサイザーが %1 個の音を %2 経由で、サウンドフォント %3 で演奏しました。</translation>
    </message>
    <message id="9443s">
        <source></source>
        <translation>コードは出力されました。内蔵シンセサイザーが %1 経由で、サウンドフォント %2 で、レベル %3 % で演奏しました。</translation>
    </message>
    <message id="9444s">
        <source></source>
        <translation>それでも聞こえないときは、スピーカーまたはヘッドホンの電源を入れて音量を上げ、システムのサウンド設定で選択してください。</translation>
    </message>
    <message id="9445s">
        <source></source>
        <translation>シンセサイザーの準備が間に合いませんでした。コンピューターの負荷が高いか、サウンドフォントが非常に大きい可能性があります。もう一度お試しください。</translation>
    </message>
    <message id="9446s">
        <source></source>
        <translation>%1 は開けましたが、音を受け付けませんでした。別のプログラムがサウンドカードを使用している可能性があります。そのプログラムを閉じるか、システムのサウンド設定で別の出力を選んでください。</translation>
    </message>
    <message id="9447s">
        <source></source>
        <translation>サウンドフォント %1 にはピアノの音がありません。別のサウンドフォントを選んでください。</translation>
    </message>
    <message id="9448s">
        <source></source>
        <translation>コードは出力されました。MIDI 機器「%1」が %2 個のメッセージをエラーなく受け付けました。</translation>
    </message>
    <message id="9449s">
        <source></source>
        <translation>それでも聞こえないときは、機器の電源と音量、チャンネル 1 に届いた音を鳴らす設定になっているかを確認してください。</translation>
    </message>
    <message id="9450s">
        <source></source>
        <translation>MIDI 機器「%1」に接続できません。ケーブルと電源を確認するか、別の出力を選んでください。</translation>
    </message>
    <message id="9451s">
        <source></source>
        <translation>練習が予期せず終了しました。それまでに保存したものは残っています。ログの最後を表示しますか？</translation>
    </message>
    <message id="9452s">
        <source></source>
        <translation>練習はすでに開いています。「OK」を押すと、そのウィンドウを前面に表示します。</translation>
    </message>
    <message id="9453s">
        <source></source>
        <translation>練習を起動できませんでした（%1）。プログラムを再インストールしてください。それでも解決しない場合は、ログから障害報告をお送りください。</translation>
    </message>
    <message id="9455s">
        <source></source>
        <translation>日時</translation>
    </message>
    <message id="9456s">
        <source></source>
        <translation>場所</translation>
    </message>
    <message id="9457s">
        <source></source>
        <translation>番号</translation>
    </message>
    <message id="9458s">
        <source></source>
        <translation>内容</translation>
    </message>
    <message id="9459s">
        <source></source>
        <translation>発生元</translation>
    </message>
    <message id="9460s">
        <source></source>
        <translation>更新</translation>
    </message>
    <message id="9461s">
        <source></source>
        <translation>障害報告としてコピー</translation>
    </message>
    <message id="9462s">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="9463s">
        <source></source>
        <translation>報告をクリップボードにコピーしました。メールに貼り付けることができます。</translation>
    </message>
    <message id="9464s">
        <source></source>
        <translation>ログは空です。</translation>
    </message>
    <message id="9467s">
        <source></source>
        <translation>予期しないエラーが発生しました（%1）。ログに記録しました。そのまま続けられます。ログから障害報告をお送りください。</translation>
    </message>
    <message id="9502s">
        <source></source>
        <translation>テストはまだ終わっていません。結果なしで終了しますか？</translation>
    </message>
    <message id="9531s">
        <source></source>
        <translation>音を準備しています…</translation>
    </message>
    <message id="9532s">
        <source></source>
        <translation>音の出力の準備ができていないため、何も演奏できませんでした。スピーカー、ヘッドホン、または MIDI 機器を確認して、もう一度お試しください。今回の分は数えられていません。</translation>
    </message>
    <message id="9551s">
        <source></source>
        <translation>コードの音数を選ぶ</translation>
    </message>
    <message id="9552s">
        <source></source>
        <translation>選んだコードの音数</translation>
    </message>
    <message id="9553s">
        <source></source>
        <translation>コードのグループを選ぶ</translation>
    </message>
    <message id="9554s">
        <source></source>
        <translation>選んだコードのグループ</translation>
    </message>
    <message id="9555s">
        <source></source>
        <translation>練習モード「%1」では次の設定は固定されており、変更されません:</translation>
    </message>
    <message id="9560s">
        <source></source>
        <translation>コード: %1</translation>
    </message>
    <message id="9561s">
        <source></source>
        <translation>コード: %2 のうち %1（毎回無作為）</translation>
    </message>
    <message id="9562s">
        <source></source>
        <translation>問題: %1、最長 %2 分</translation>
    </message>
    <message id="9563s">
        <source></source>
        <translation>未選択: コードの音数（1つ以上）</translation>
    </message>
    <message id="9564s">
        <source></source>
        <translation>未選択: コードのグループ（%1 / 最低 %2）</translation>
    </message>
    <message id="9565s">
        <source></source>
        <translation>試聴: 選択がそろってから</translation>
    </message>
    <message id="9566s">
        <source></source>
        <translation>試聴: » で全グループを選択した後のみ</translation>
    </message>
    <message id="9567s">
        <source></source>
        <translation>試聴音を再生中: 終わるまでOKと試聴は使えません</translation>
    </message>
    <message id="9601s">
        <source></source>
        <translation>テストを読み込む</translation>
    </message>
    <message id="9602s">
        <source></source>
        <translation>設定を保存</translation>
    </message>
    <message id="9603s">
        <source></source>
        <translation>姓：</translation>
    </message>
    <message id="9604s">
        <source></source>
        <translation>名：</translation>
    </message>
    <message id="9605s">
        <source></source>
        <translation>学籍番号：</translation>
    </message>
    <message id="9606s">
        <source></source>
        <translation>試験</translation>
    </message>
    <message id="9611s">
        <source></source>
        <translation>ファイルまたはそのフォルダーがありません。</translation>
    </message>
    <message id="9612s">
        <source></source>
        <translation>このファイルへのアクセスは許可されていません。</translation>
    </message>
    <message id="9613s">
        <source></source>
        <translation>これはフォルダーで、ファイルではありません。</translation>
    </message>
    <message id="9614s">
        <source></source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message id="9615s">
        <source></source>
        <translation>システムの報告: %1。</translation>
    </message>
    <message id="9616s">
        <source></source>
        <translation>読み取れるファイルではありません。</translation>
    </message>
    <message id="9617s">
        <source></source>
        <translation>ファイルがテストとしては大きすぎます。</translation>
    </message>
    <message id="9618s">
        <source></source>
        <translation>テストが大きすぎてファイルに保存できません。</translation>
    </message>
    <message id="9619s">
        <source></source>
        <translation>読み取れない文字があります。</translation>
    </message>
    <message id="9620s">
        <source></source>
        <translation>テキストが整形式の XML ではありません。</translation>
    </message>
    <message id="9621s">
        <source></source>
        <translation>最上位の要素が「%1」ではありません。</translation>
    </message>
    <message id="9622s">
        <source></source>
        <translation>最上位の要素が二つあります。</translation>
    </message>
    <message id="9623s">
        <source></source>
        <translation>「%1」に要素「%2」がありません。</translation>
    </message>
    <message id="9624s">
        <source></source>
        <translation>「%1」に属性「%2」がありません。</translation>
    </message>
    <message id="9625s">
        <source></source>
        <translation>「%1」が整数ではありません。</translation>
    </message>
    <message id="9631s">
        <source></source>
        <translation>このヘルプページは英語です。</translation>
    </message>
    <message id="9633s">
        <source></source>
        <translation>… ほか %1 件</translation>
    </message>
    <message id="9634s">
        <source></source>
        <translation>このヘルプのページは表示できません。大きすぎるか、入れ子が深すぎます。</translation>
    </message>
    <message id="9635s">
        <source></source>
        <translation>保存したトレーニングのフォルダー名 %1 が UTF-8 ではないため、そこには何も保存できません。練習はできますが、いま保存したものはプログラムの終了時に失われます。MELVADO_STORE で別の場所を指定してください。</translation>
    </message>
    <message id="9681s">
        <source></source>
        <translation>ヴォイシング</translation>
    </message>
    <message id="9682s">
        <source></source>
        <translation>%1：未回答</translation>
    </message>
    <message id="9683s">
        <source></source>
        <translation>%1：正解、%2</translation>
    </message>
    <message id="9684s">
        <source></source>
        <translation>%1：不正解、もう一度答えられます</translation>
    </message>
    <message id="9685s">
        <source></source>
        <translation>%1：不正解、答えは %2</translation>
    </message>
    <message id="9721s">
        <source></source>
        <translation>正解：%1</translation>
    </message>
    <message id="9722s">
        <source></source>
        <translation>コード %1、全 %2 個</translation>
    </message>
    <message id="9723s">
        <source></source>
        <translation>答えてください</translation>
    </message>
    <message id="9724s">
        <source></source>
        <translation>問題終了、%2 個中 %1 個正解</translation>
    </message>
    <message id="9726s">
        <source></source>
        <translation>トレーニング終了：%1</translation>
    </message>
    <message id="9727s">
        <source></source>
        <translation>テスト終了</translation>
    </message>
    <message id="9728s">
        <source></source>
        <translation>時間切れです</translation>
    </message>
    <message id="9731s">
        <source></source>
        <translation>%1：「%2」から「%3」へ</translation>
    </message>
    <message id="9732s">
        <source></source>
        <translation>すべて「%1」から「%2」へ</translation>
    </message>
</context>
</TS>
