<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>BackHints</name>
    <message>
        <source>This lesson goes on in “%1”.</source>
        <extracomment>%1 is the title of a window; a sentence with what to do follows.</extracomment>
        <translation>このレッスンは「%1」で続きます。</translation>
    </message>
    <message>
        <source>Press Esc: the menu closes.</source>
        <translation>Esc キーを押すと、メニューが閉じます。</translation>
    </message>
    <message>
        <source>Press Esc: this window closes.</source>
        <translation>Esc キーを押すと、このウィンドウが閉じます。</translation>
    </message>
    <message>
        <source>Click “%1”.</source>
        <extracomment>%1 is the text of a button that closes a window.</extracomment>
        <translation>「%1」をクリックしてください。</translation>
    </message>
    <message>
        <source>Double-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list.</extracomment>
        <translation>もう一度「%1」をダブルクリックしてください。</translation>
    </message>
    <message>
        <source>Right-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list, or the name of a part of the window.</extracomment>
        <translation>もう一度「%1」を右クリックしてください。</translation>
    </message>
    <message>
        <source>Click “%1” again.</source>
        <extracomment>%1 is the text of a button, tab or row of a list.</extracomment>
        <translation>もう一度「%1」をクリックしてください。</translation>
    </message>
    <message>
        <source>Something is different from what this step needs. Click “Put it back” in the lesson strip.</source>
        <translation>今の状態では、この手順を続けられません。レッスンの帯にある「元に戻す」をクリックしてください。</translation>
    </message>
</context>
<context>
    <name>DataFiles</name>
    <message>
        <source>%1 Nothing is lost: the editor keeps all your changes. Make room on the disk, or permit writing, and save again.</source>
        <extracomment>%1 is a sentence that names a file and says why it cannot be written.</extracomment>
        <translation>%1変更はすべてエディターに残っています。ディスクの空きを増やすか、書き込みを許可してから、もう一度保存してください。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” is damaged at line %2 (%3). Mend that line, or put a whole copy of the file in its place, and open the project again.</source>
        <extracomment>%1 is a file&apos;s path, %2 the number of a line, %3 what the JSON reader says of it.</extracomment>
        <translation>プロジェクトのファイル「%1」は%2行目が壊れています（%3）。その行を直すか、壊れていないファイルと置き換えてから、もう一度プロジェクトを開いてください。</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Save the changes in “%1”?</source>
        <extracomment>%1 is the name of the open project.</extracomment>
        <translation>「%1」の変更を保存しますか？</translation>
    </message>
    <message>
        <source>What you have changed since you saved it last is lost otherwise.</source>
        <translation>保存しないと、最後に保存したあとの変更は失われます。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button: save the project, then leave it.</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t save</source>
        <extracomment>A button: leave the project without saving it.</extracomment>
        <translation>保存しない(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button: go on with the project as it is.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>LessonChooser</name>
    <message>
        <source>Start</source>
        <extracomment>A button: begin the lesson.</extracomment>
        <translation>始める</translation>
    </message>
    <message>
        <source>Go on</source>
        <extracomment>A button: go on with the lesson where it was left.</extracomment>
        <translation>続きから</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>レッスン</translation>
    </message>
    <message>
        <source>Lesson</source>
        <translation>レッスン</translation>
    </message>
    <message>
        <source>What you do in it</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Head of a column: how long a lesson takes.</extracomment>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Head of a column: how far the person has come in a lesson.</extracomment>
        <translation>進み具合</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>A button: leave the list of lessons.</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>✓ done</source>
        <extracomment>The person has played the lesson to its end.</extracomment>
        <translation>✓ 修了</translation>
    </message>
    <message>
        <source>step %1 of %2</source>
        <extracomment>The lesson goes on here: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>手順 %1 / %2</translation>
    </message>
    <message>
        <source>not there yet</source>
        <extracomment>The lesson does not exist yet.</extracomment>
        <translation>準備中</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <extracomment>The lesson is not in the program.</extracomment>
        <translation>開けません</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>How long a lesson takes.</extracomment>
        <translation>%1分</translation>
    </message>
    <message>
        <source>Start again</source>
        <extracomment>A button: begin the lesson anew.</extracomment>
        <translation>最初から</translation>
    </message>
</context>
<context>
    <name>LessonCourse</name>
    <message>
        <source>“%1” cannot go on where it was left: the project in which you were is gone or has changed. It begins again.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>「%1」をやめた所から続けられません。使っていたプロジェクトがなくなったか、変わったためです。レッスンは最初から始まります。</translation>
    </message>
</context>
<context>
    <name>LessonProgress</name>
    <message>
        <source>Your progress cannot be read from “%1” (%2). Permit reading the file and start the editor again.</source>
        <extracomment>%1 is the path of a file, %2 the system&apos;s reason.</extracomment>
        <translation>進み具合を「%1」から読み込めません（%2）。ファイルの読み取りを許可してから、エディターをもう一度起動してください。</translation>
    </message>
    <message>
        <source>The file “%1” with your progress is damaged, so the lessons begin anew. It is kept as “%2”.</source>
        <extracomment>%1 and %2 are paths of files.</extracomment>
        <translation>進み具合のファイル「%1」が壊れているため、レッスンは最初から始まります。ファイルは「%2」として残してあります。</translation>
    </message>
    <message>
        <source>Your progress cannot be kept in “%1” (%2). Make room on the disk, or permit writing. You can play on meanwhile.</source>
        <extracomment>%1 is the path of a file, %2 the system&apos;s reason.</extracomment>
        <translation>進み具合を「%1」に保存できません（%2）。ディスクの空きを増やすか、書き込みを許可してください。レッスンはこのまま続けられます。</translation>
    </message>
</context>
<context>
    <name>LessonProject</name>
    <message>
        <source>The data files of the lesson have not come, so “%1” is without them. Start the lesson again.</source>
        <extracomment>%1 is the name of the project.</extracomment>
        <translation>レッスンのデータファイルが届いていないため、「%1」にはデータファイルがありません。もう一度、レッスンを最初から始めてください。</translation>
    </message>
</context>
<context>
    <name>LessonStrip</name>
    <message>
        <source>Lessons…</source>
        <extracomment>Opens the list of lessons.</extracomment>
        <translation>レッスン一覧…</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Leave lesson</source>
        <translation>レッスンをやめる</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>One step back.</extracomment>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Show me</source>
        <extracomment>Help: the arrow shows the place again; pressed once more, the step is done for the person.</extracomment>
        <translation>教えて</translation>
    </message>
    <message>
        <source>Put it back</source>
        <extracomment>Makes everything as it was when the step began.</extracomment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Skip step</source>
        <extracomment>The step is done for the person, and the lesson goes on.</extracomment>
        <translation>この手順を飛ばす</translation>
    </message>
    <message>
        <source>Next lesson</source>
        <translation>次のレッスン</translation>
    </message>
    <message>
        <source>Progress of the lesson</source>
        <translation>レッスンの進み具合</translation>
    </message>
    <message>
        <source>Picture of dragging: press the mouse button, move, let go</source>
        <translation>ドラッグの絵：マウスのボタンを押し、動かして、離す</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How far the lesson is: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>あと約%1分</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>あと約1分</translation>
    </message>
</context>
<context>
    <name>PracticeEditor</name>
    <message>
        <source>Restart</source>
        <extracomment>A button: start the guide again.</extracomment>
        <translation>もう一度起動</translation>
    </message>
    <message>
        <source>Go on without</source>
        <extracomment>A button: go on without the guide.</extracomment>
        <translation>ガイドなしで続ける</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>問題が起きました。</translation>
    </message>
    <message>
        <source>Practice editor</source>
        <translation>練習用エディター</translation>
    </message>
    <message>
        <source>The editor cannot listen on “%1”: %2. Start it again with another --key, or without one.</source>
        <extracomment>%1 is the name of a local server, %2 the system&apos;s reason.</extracomment>
        <translation>「%1」で接続を待てません（%2）。別の --key を付けるか、--key を付けずに、もう一度起動してください。</translation>
    </message>
    <message>
        <source>The guide “%1” does not start: %2. Build the target Tutorial, or name the program with --companion.</source>
        <extracomment>The guide is the companion program; %1 is its path, %2 the system&apos;s reason.</extracomment>
        <translation>ガイド「%1」を起動できません（%2）。ターゲット Tutorial をビルドするか、--companion でプログラムを指定してください。</translation>
    </message>
    <message>
        <source>“%1” cannot be played: its step %2 has the word “%3”, which this editor does not know. Install the newest version of the editor, or tell whoever wrote the lesson.</source>
        <extracomment>%1 is the title of a lesson, %2 the number of one of its steps, %3 a word of its script.</extracomment>
        <translation>「%1」は再生できません。手順%2に、このエディターの知らない語「%3」があります。最新版のエディターを入れるか、レッスンの作者に知らせてください。</translation>
    </message>
    <message>
        <source>The guide ended unexpectedly. Your project is not affected.</source>
        <translation>ガイドが突然終了しました。プロジェクトには影響ありません。</translation>
    </message>
    <message>
        <source>Restart it?</source>
        <translation>もう一度起動しますか？</translation>
    </message>
    <message>
        <source>Restart it? The lesson goes on at the step where you are.</source>
        <translation>もう一度起動しますか？レッスンは今の手順から続きます。</translation>
    </message>
</context>
<context>
    <name>ProjectFolder</name>
    <message>
        <source>A project cannot have the name “%1”: its folder is named after it. Choose another name, without “/”.</source>
        <extracomment>%1 is the name that the person gave a new project.</extracomment>
        <translation>プロジェクトの名前を「%1」にはできません。プロジェクトの名前は、フォルダーの名前にもなるためです。「/」を含まない別の名前にしてください。</translation>
    </message>
    <message>
        <source>The project cannot hold the file “%1”: it would lie outside of the project&apos;s folder.</source>
        <extracomment>%1 is a path inside the project.</extracomment>
        <translation>ファイル「%1」は、プロジェクトのフォルダーの外に置かれてしまうため、プロジェクトに入れられません。</translation>
    </message>
    <message>
        <source>The project&apos;s folder cannot be made in “%1” (%2). Choose another place.</source>
        <extracomment>%1 is a folder, %2 the system&apos;s reason.</extracomment>
        <translation>「%1」にプロジェクトのフォルダーを作れません（%2）。別の場所を選んでください。</translation>
    </message>
    <message>
        <source>The project&apos;s folder “%1” cannot be made. Choose another name or place.</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>プロジェクトのフォルダー「%1」を作れません。名前か場所を変えてください。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” cannot be written (%2).</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>プロジェクトのファイル「%1」に書き込めません（%2）。</translation>
    </message>
    <message>
        <source>“%1” holds no project: it has no data files. Choose another folder.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>「%1」にはデータファイルがなく、プロジェクトではありません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” cannot be read (%2). Permit reading it, and open the project again.</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>プロジェクトのファイル「%1」を読み込めません（%2）。読み取りを許可してから、もう一度プロジェクトを開いてください。</translation>
    </message>
    <message>
        <source>The project&apos;s folder “%1” cannot be read: you are not permitted to list its files. Permit it, and open the project again.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>プロジェクトのフォルダー「%1」を読み込めません。中のファイルを一覧する許可がないためです。許可してから、もう一度プロジェクトを開いてください。</translation>
    </message>
</context>
<context>
    <name>StripControl</name>
    <message>
        <source>The guide does not answer.</source>
        <translation>ガイドが応答しません。</translation>
    </message>
    <message>
        <source>In the lessons you make a game step by step. Choose one with “Lessons…”.</source>
        <extracomment>&quot;Lessons…&quot; is a button.</extracomment>
        <translation>レッスンでは、ゲームを少しずつ作っていきます。「レッスン一覧…」から選んでください。</translation>
    </message>
    <message>
        <source>The lesson is being opened…</source>
        <translation>レッスンを開いています…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened. Choose another lesson with “Lessons…”.</source>
        <extracomment>%1 is the title of a lesson. &quot;Lessons…&quot; is a button.</extracomment>
        <translation>「%1」を開けません。「レッスン一覧…」から別のレッスンを選んでください。</translation>
    </message>
    <message>
        <source>You have left the lesson. It goes on at step %1: choose it with “Lessons…”, then “Go on”.</source>
        <extracomment>&quot;Lessons…&quot; and &quot;Go on&quot; are buttons. %1 is the number of a step.</extracomment>
        <translation>レッスンをやめました。「レッスン一覧…」で選んで「続きから」をクリックすると、手順%1から続きます。</translation>
    </message>
    <message>
        <source>You have left the lesson. Choose another one with “Lessons…”.</source>
        <translation>レッスンをやめました。「レッスン一覧…」から別のレッスンを選べます。</translation>
    </message>
    <message>
        <source>The guide is gone. To go on with a lesson, choose it with “Lessons…”.</source>
        <extracomment>The guide is the companion program. &quot;Lessons…&quot; is a button.</extracomment>
        <translation>ガイドが終了しました。続けるには、「レッスン一覧…」でレッスンを選んでください。</translation>
    </message>
    <message>
        <source>Well done! You have finished “%1”.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>お疲れさまでした！「%1」を修了しました。</translation>
    </message>
    <message>
        <source>Start again</source>
        <extracomment>A button: begin the lesson anew.</extracomment>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Start “%1” again from the beginning? You are at step %2.</source>
        <extracomment>%1 is the title of a lesson, %2 the number of a step.</extracomment>
        <translation>「%1」を最初から始めますか？今は手順%2です。</translation>
    </message>
    <message>
        <source>What you have made so far stays in your project.</source>
        <translation>これまでに作ったものは、プロジェクトに残ります。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button: nothing changes.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
