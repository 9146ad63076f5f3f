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
        <source>The game lies over what this step is about. Click “Esc” below it until it closes.</source>
        <translation>ゲームが、次に使うところを隠しています。ゲームが閉じるまで、下の「Esc」をクリックしてください。</translation>
    </message>
    <message>
        <source>The game is closed already.</source>
        <translation>ゲームはもう終わっています。</translation>
    </message>
    <message>
        <source>Press Esc: the menu closes.</source>
        <translation>Escキーを押すと、メニューが閉じます。</translation>
    </message>
    <message>
        <source>Press Esc: this window closes.</source>
        <translation>Escキーを押すと、このウィンドウが閉じます。</translation>
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
        <translation>このままでは続けられません。レッスンの帯の「手順の最初に戻す」をクリックしてください。</translation>
    </message>
    <message>
        <source>Wait a moment: this window closes by itself.</source>
        <translation>しばらくお待ちください。このウィンドウは自動的に閉じます。</translation>
    </message>
</context>
<context>
    <name>Battle</name>
    <message>
        <source>There is no troop %1, so there is nobody to fight. Choose a troop that the database has.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>敵グループ%1がないため、戦う相手がいません。データベースにある敵グループを選んでください。</translation>
    </message>
    <message>
        <source>The troop “%1” has a member that is enemy %2, which the database does not have.</source>
        <extracomment>%1 is the name of a troop, %2 a number.</extracomment>
        <translation>敵グループ「%1」のメンバーに、データベースにない敵キャラ%2がいます。</translation>
    </message>
    <message>
        <source>The actions of “%1” name skills that the database does not have, so it just attacks.</source>
        <extracomment>%1 is the name of an enemy.</extracomment>
        <translation>「%1」の行動パターンのスキルがデータベースにないため、攻撃だけをします。</translation>
    </message>
    <message>
        <source>The troop “%1” has no members, so there is nobody to fight.</source>
        <extracomment>%1 is the name of a troop.</extracomment>
        <translation>敵グループ「%1」にはメンバーがいないため、戦う相手がいません。</translation>
    </message>
    <message>
        <source>For %1 turns nobody in this battle could act, so it was ended. Give the states that forbid to act an end.</source>
        <translation>%1ターンの間、だれも行動できなかったため、この戦闘を終わらせました。行動できなくなるステートには、終わりを設定してください。</translation>
    </message>
</context>
<context>
    <name>BattleMenu</name>
    <message>
        <source>Attack</source>
        <translation>攻撃</translation>
    </message>
    <message>
        <source>Hits an enemy with the weapon.</source>
        <translation>武器で敵を攻撃します。</translation>
    </message>
    <message>
        <source>Uses a skill.</source>
        <translation>スキルを使います。</translation>
    </message>
    <message>
        <source>No skills yet.</source>
        <translation>まだスキルがありません。</translation>
    </message>
    <message>
        <source>Uses an item from the bag.</source>
        <translation>持っているアイテムを使います。</translation>
    </message>
    <message>
        <source>The bag is empty.</source>
        <translation>何も持っていません。</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>防御</translation>
    </message>
    <message>
        <source>Halves the damage of this turn.</source>
        <translation>このターンに受けるダメージを半分にします。</translation>
    </message>
    <message>
        <source>Flee</source>
        <translation>逃げる</translation>
    </message>
    <message>
        <source>All of you try to get away.</source>
        <translation>全員で逃げようとします。</translation>
    </message>
    <message>
        <source>There is no way out of this battle.</source>
        <translation>この戦闘からは逃げられません。</translation>
    </message>
    <message>
        <source>Not enough MP.</source>
        <translation>MPが足りません。</translation>
    </message>
    <message>
        <source>This cannot be used here.</source>
        <translation>ここでは使えません。</translation>
    </message>
    <message>
        <source>Whom?</source>
        <translation>だれに？</translation>
    </message>
</context>
<context>
    <name>BattleWords</name>
    <message>
        <source>%1 attacks!</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1の攻撃！</translation>
    </message>
    <message>
        <source>%1 uses %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill or an item.</extracomment>
        <translation>%1は%2を使った！</translation>
    </message>
    <message>
        <source>%1 guards.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1は身を守っている。</translation>
    </message>
    <message>
        <source>%1 takes %2 damage.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1は%2のダメージを受けた！</translation>
    </message>
    <message>
        <source>%1 recovers %2 HP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1のHPが%2回復した！</translation>
    </message>
    <message>
        <source>%1 loses %2 MP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1のMPが%2減った！</translation>
    </message>
    <message>
        <source>%1 recovers %2 MP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1のMPが%2回復した！</translation>
    </message>
    <message>
        <source>%1 learns %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill.</extracomment>
        <translation>%1は%2を覚えた！</translation>
    </message>
    <message>
        <source>Nothing happens to %1.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1には何も起こらなかった。</translation>
    </message>
    <message>
        <source>%1 cannot use %2 now.</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill.</extracomment>
        <translation>%1は今%2を使えない。</translation>
    </message>
    <message>
        <source>You get away safely!</source>
        <translation>うまく逃げ切れた！</translation>
    </message>
    <message>
        <source>You cannot get away!</source>
        <translation>逃げられなかった！</translation>
    </message>
    <message>
        <source>%1 falls!</source>
        <extracomment>%1 is the name of somebody who has no HP left.</extracomment>
        <translation>%1は倒れた！</translation>
    </message>
    <message>
        <source>%1 cannot act.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1は動けない。</translation>
    </message>
    <message>
        <source>%1 appears!</source>
        <extracomment>%1 is the name of an enemy.</extracomment>
        <translation>%1が現れた！</translation>
    </message>
    <message>
        <source>You have won!</source>
        <translation>戦闘に勝利した！</translation>
    </message>
    <message>
        <source>You get %1.</source>
        <extracomment>%1 is an amount of money with its unit.</extracomment>
        <translation>%1を手に入れた。</translation>
    </message>
    <message>
        <source>You find %1 × %2.</source>
        <extracomment>%1 is the name of an item, %2 how many of it.</extracomment>
        <translation>%1×%2を見つけた。</translation>
    </message>
    <message>
        <source>%1 gets %2 EXP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points of experience.</extracomment>
        <translation>%1は%2の経験値を得た。</translation>
    </message>
    <message>
        <source>%1 is now level %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number.</extracomment>
        <translation>%1はレベル%2になった！</translation>
    </message>
    <message>
        <source>You have been defeated…</source>
        <translation>戦いに敗れた……</translation>
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
    <name>EquipScene</name>
    <message>
        <source>Take it off.</source>
        <translation>装備を外します。</translation>
    </message>
    <message>
        <source>Nothing is worn here.</source>
        <translation>何も装備していません。</translation>
    </message>
</context>
<context>
    <name>GameOverScene</name>
    <message>
        <source>Game over</source>
        <translation>ゲームオーバー</translation>
    </message>
    <message>
        <source>Press Enter to return to the title.</source>
        <translation>Enterキーでタイトルに戻ります。</translation>
    </message>
</context>
<context>
    <name>ItemScene</name>
    <message>
        <source>The bag is empty.</source>
        <translation>何も持っていません。</translation>
    </message>
    <message>
        <source>Put it on in the menu, under Equipment.</source>
        <translation>メニューの「装備」で身につけられます。</translation>
    </message>
    <message>
        <source>It would do nothing.</source>
        <translation>使っても効果がありません。</translation>
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
        <translation>手順%1 / %2</translation>
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
        <translation>手順の最初に戻す</translation>
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
    <name>MenuScene</name>
    <message>
        <source>There is nobody in the party.</source>
        <translation>パーティーにだれもいません。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>セーブする場所がありません。先にエディターでプロジェクトを保存してください。</translation>
    </message>
    <message>
        <source>Look into the bag.</source>
        <translation>持ち物を見ます。</translation>
    </message>
    <message>
        <source>Use a skill.</source>
        <translation>スキルを使います。</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>装備</translation>
    </message>
    <message>
        <source>Change weapon and armor.</source>
        <translation>武器と防具を変えます。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>See what somebody can do.</source>
        <translation>仲間の能力を見ます。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>セーブ</translation>
    </message>
    <message>
        <source>Save the game.</source>
        <translation>ゲームをセーブします。</translation>
    </message>
    <message>
        <source>To the title</source>
        <translation>タイトルへ</translation>
    </message>
    <message>
        <source>Leave this game. What is not saved is lost.</source>
        <translation>ゲームをやめます。セーブしていない分は失われます。</translation>
    </message>
    <message>
        <source>Time %1</source>
        <extracomment>How long the game has been played; %1 is a time.</extracomment>
        <translation>時間 %1</translation>
    </message>
    <message>
        <source>Leave this game? What is not saved is lost.</source>
        <translation>ゲームをやめますか？セーブしていない分は失われます。</translation>
    </message>
</context>
<context>
    <name>NameScene</name>
    <message>
        <source>ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-&apos;. </source>
        <extracomment>The letters from which a name can be put together, in the order in which they are shown, 10 in a row. Take those that names in your language are written with.</extracomment>
        <translation>あいうえおかきくけこさしすせそたちつてとなにぬねのはひふへほまみむめもらりるれろやゆよわをんゃゅょっがぎぐげござじずぜぞだぢづでどばびぶべぼぱぴぷぺぽぁぃぅぇぉアイウエオカキクケコサシスセソタチツテトナニヌネノハヒフヘホマミムメモラリルレロヤユヨワヲンャュョッガギグゲゴザジズゼゾダヂヅデドバビブベボパピプペポァィゥェォー・</translation>
    </message>
    <message>
        <source>Type a name, or choose its letters.</source>
        <translation>名前を入力するか、文字を選んでください。</translation>
    </message>
    <message>
        <source>A name has %1 letters at most.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>名前は%1文字までです。</translation>
    </message>
    <message>
        <source>Type, or choose letters. “Done” takes the name.</source>
        <translation>キーボードで入力するか、文字を選びます。「決定」で終わります。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>決定</translation>
    </message>
</context>
<context>
    <name>NewProject</name>
    <message>
        <source>Choose another name, without “/”.</source>
        <extracomment>Beside the name of a new project, which cannot be that of a folder.</extracomment>
        <translation>「/」を含まない名前にしてください。</translation>
    </message>
    <message>
        <source>No folder can be made at this place.</source>
        <extracomment>Below the place of a new project; there is little room.</extracomment>
        <translation>この場所にはフォルダーを作れません。</translation>
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
    <message>
        <source>What there was when this step began cannot be brought back: the project in which you were is gone or cannot be read. Start the lesson again.</source>
        <translation>この手順を始めたときの状態に戻せません。作業していたプロジェクトがなくなったか、読み込めません。レッスンを最初からやり直してください。</translation>
    </message>
</context>
<context>
    <name>PraiseCard</name>
    <message>
        <source>Next lesson</source>
        <translation>次のレッスン</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
    <name>SaveFiles</name>
    <message>
        <source>This saved game cannot be read: “%1”.</source>
        <extracomment>%1 is a file&apos;s path.</extracomment>
        <translation>このセーブデータは読み込めません：「%1」</translation>
    </message>
    <message>
        <source>This saved game is damaged and cannot be loaded.</source>
        <translation>このセーブデータは壊れているため、読み込めません。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>セーブする場所がありません。先にエディターでプロジェクトを保存してください。</translation>
    </message>
    <message>
        <source>The game could not be saved (%1). What was saved before is still there.</source>
        <extracomment>%1 is the system&apos;s reason.</extracomment>
        <translation>セーブできませんでした（%1）。前のセーブデータは残っています。</translation>
    </message>
</context>
<context>
    <name>SaveScene</name>
    <message>
        <source>Save</source>
        <translation>セーブ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>コンティニュー</translation>
    </message>
    <message>
        <source>Nothing is saved here yet.</source>
        <translation>ここにはまだセーブデータがありません。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>セーブする場所がありません。先にエディターでプロジェクトを保存してください。</translation>
    </message>
    <message>
        <source>Save here?</source>
        <translation>ここにセーブしますか？</translation>
    </message>
    <message>
        <source>Go on from here?</source>
        <translation>ここから続けますか？</translation>
    </message>
    <message>
        <source>The game is saved.</source>
        <translation>セーブしました。</translation>
    </message>
    <message>
        <source>Replace what is saved here?</source>
        <translation>上書きしますか？</translation>
    </message>
</context>
<context>
    <name>ShopScene</name>
    <message>
        <source>This shop only sells.</source>
        <translation>この店では買い取りをしていません。</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>購入</translation>
    </message>
    <message>
        <source>What would you like?</source>
        <translation>何を買いますか？</translation>
    </message>
    <message>
        <source>Sell</source>
        <translation>売却</translation>
    </message>
    <message>
        <source>Sell something from your bag.</source>
        <translation>持ち物を売ります。</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>店を出る</translation>
    </message>
    <message>
        <source>Come again!</source>
        <translation>またどうぞ！</translation>
    </message>
    <message>
        <source>You do not have enough money.</source>
        <translation>お金が足りません。</translation>
    </message>
    <message>
        <source>You cannot carry more of this.</source>
        <translation>これ以上は持てません。</translation>
    </message>
    <message>
        <source>There is nothing for sale.</source>
        <translation>商品がありません。</translation>
    </message>
    <message>
        <source>The shop does not buy this.</source>
        <translation>この店では買い取れません。</translation>
    </message>
    <message>
        <source>The bag is empty.</source>
        <translation>何も持っていません。</translation>
    </message>
    <message>
        <source>How many?</source>
        <translation>いくつ？</translation>
    </message>
    <message>
        <source>In the bag: %1</source>
        <extracomment>%1 is how many of a thing are in the bag.</extracomment>
        <translation>持っている数：%1</translation>
    </message>
    <message>
        <source>Left and right: by 1. Up and down: by 10.</source>
        <translation>左右で1個、上下で10個ずつ変わります。</translation>
    </message>
</context>
<context>
    <name>SkillScene</name>
    <message>
        <source>No skills yet.</source>
        <translation>まだスキルがありません。</translation>
    </message>
    <message>
        <source>%1 cannot use skills now.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1は今スキルを使えません。</translation>
    </message>
    <message>
        <source>Not enough MP.</source>
        <translation>MPが足りません。</translation>
    </message>
    <message>
        <source>It would do nothing.</source>
        <translation>使っても効果がありません。</translation>
    </message>
</context>
<context>
    <name>StatusScene</name>
    <message>
        <source>%1 EXP to the next level</source>
        <extracomment>%1 is a number of points of experience.</extracomment>
        <translation>次のレベルまで 経験値%1</translation>
    </message>
    <message>
        <source>No higher level.</source>
        <translation>これ以上レベルは上がりません。</translation>
    </message>
    <message>
        <source>Left and right: the others</source>
        <translation>左右キー：ほかの仲間</translation>
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
<context>
    <name>Terms</name>
    <message>
        <source>G</source>
        <extracomment>The unit of money in a game, behind the amount.</extracomment>
        <translation>G</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the words of a list.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>経験値</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>攻撃力</translation>
    </message>
    <message>
        <source>Defense</source>
        <translation>防御力</translation>
    </message>
    <message>
        <source>Agility</source>
        <translation>素早さ</translation>
    </message>
    <message>
        <source>Weapon</source>
        <translation>武器</translation>
    </message>
    <message>
        <source>Armor</source>
        <translation>防具</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>アイテム</translation>
    </message>
    <message>
        <source>Skills</source>
        <translation>スキル</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>TestPlay</name>
    <message>
        <source>The file is missing; its entries are not there.</source>
        <translation>ファイルがありません。中のデータはないものとして扱います。</translation>
    </message>
    <message>
        <source>The file is no list of entries; they are not there.</source>
        <translation>ファイルがデータのリストになっていません。中のデータはないものとして扱います。</translation>
    </message>
    <message>
        <source>The file is missing or no object: party and start are not known.</source>
        <translation>ファイルがないか、形式が正しくありません。パーティーと開始位置がわかりません。</translation>
    </message>
    <message>
        <source>The game starts on map %1, and there is none.</source>
        <translation>ゲームはマップ%1から始まりますが、そのマップがありません。</translation>
    </message>
    <message>
        <source>The game starts at %1, %2, outside of its map; it starts at its edge.</source>
        <translation>開始位置（%1, %2）はマップの外です。マップの端から始まります。</translation>
    </message>
    <message>
        <source>The party has nobody in it.</source>
        <translation>パーティーにだれもいません。</translation>
    </message>
    <message>
        <source>The event stands at %1, %2, outside of its map.</source>
        <translation>イベントの位置（%1, %2）はマップの外です。</translation>
    </message>
    <message>
        <source>The event has no pages, so it is never there.</source>
        <translation>イベントにページがないため、現れることはありません。</translation>
    </message>
    <message>
        <source>The page has no list of commands: it does nothing.</source>
        <translation>このページには実行内容のリストがないため、何も起こりません。</translation>
    </message>
    <message>
        <source>The page begins by trigger %1, which there is not: it begins when it is asked.</source>
        <translation>ページの開始条件%1はありません。話しかけたときに開始します。</translation>
    </message>
    <message>
        <source>The page moves in way %1, which there is not: the event stays.</source>
        <translation>ページの移動方法%1はありません。イベントは動きません。</translation>
    </message>
    <message>
        <source>The map has %1 numbers of tiles; %2 x %3 cells in %4 layers need %5. Cells without a number are empty, and nobody can walk there.</source>
        <translation>マップのタイル番号が%1個です。%2 × %3マスで%4レイヤーには%5個必要です。番号のないマスは空になり、そこは歩けません。</translation>
    </message>
    <message>
        <source>%1, %2 in layer %3</source>
        <comment>place of a cell on a map</comment>
        <translation>レイヤー%3の（%1, %2）</translation>
    </message>
    <message>
        <source>The map has tiles that are not there: %1 in all, the first one at %2. Their cells are empty; draw them anew.</source>
        <translation>マップに存在しないタイルがあります（全部で%1個、最初は%2）。そのマスは空になります。描き直してください。</translation>
    </message>
    <message>
        <source>The map “%1” has tile set %2, which is not there: its tiles have their usual colours.</source>
        <translation>マップ「%1」のタイルセット%2はありません。タイルは通常の色で表示されます。</translation>
    </message>
    <message>
        <source>The skill “%1” shows animation %2, which is not there.</source>
        <translation>スキル「%1」で表示するアニメーション%2はありません。</translation>
    </message>
    <message>
        <source>The animation “%1” has %2 pictures; it has to have 1 to %3.</source>
        <translation>アニメーション「%1」のフレーム数が%2です。1～%3にしてください。</translation>
    </message>
    <message>
        <source>The actor “%1” has class %2, which is not there: no HP and MP grow, and no skills are learned.</source>
        <translation>アクター「%1」の職業%2はありません。HPとMPは増えず、スキルも習得しません。</translation>
    </message>
    <message>
        <source>The actor “%1” begins with weapon %2, which is not there.</source>
        <translation>アクター「%1」が最初に装備する武器%2はありません。</translation>
    </message>
    <message>
        <source>The actor “%1” begins with armor %2, which is not there.</source>
        <translation>アクター「%1」が最初に装備する防具%2はありません。</translation>
    </message>
    <message>
        <source>The class “%1” learns skill %2, which is not there.</source>
        <translation>職業「%1」が習得するスキル%2はありません。</translation>
    </message>
    <message>
        <source>The enemy “%1” drops item %2, which is not there.</source>
        <translation>敵キャラ「%1」が落とすアイテム%2はありません。</translation>
    </message>
    <message>
        <source>An effect of “%1” names state %2, which is not there.</source>
        <translation>「%1」の効果に指定されたステート%2はありません。</translation>
    </message>
    <message>
        <source>An effect of “%1” names skill %2, which is not there.</source>
        <translation>「%1」の効果に指定されたスキル%2はありません。</translation>
    </message>
    <message>
        <source>An effect of “%1” names common event %2, which is not there.</source>
        <translation>「%1」の効果に指定されたコモンイベント%2はありません。</translation>
    </message>
    <message>
        <source>Actor %1 of the party is not there.</source>
        <translation>パーティーのアクター%1がありません。</translation>
    </message>
    <message>
        <source>The map has %1 x %2 cells; a side has to have 1 to %3. Nobody can go there.</source>
        <translation>マップの大きさが%1×%2マスです。一辺は1～%3マスにしてください。このマップには行けません。</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>イベント%1</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>ページ%1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a place in the project, and what is wrong</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>This is no saved game that can be read here.</source>
        <translation>このセーブデータは読み込めません。</translation>
    </message>
    <message>
        <source>The game was saved on map %1 at %2, %3, and the project has no such place any more.</source>
        <translation>セーブした場所（マップ%1、座標%2, %3）が、プロジェクトにもうありません。</translation>
    </message>
    <message>
        <source>The project was changed since this game was saved: some things may not fit.</source>
        <translation>セーブしたあとにプロジェクトが変更されています。合わないところがあるかもしれません。</translation>
    </message>
    <message>
        <source>This begins by itself again and again, so the player can do nothing. Let it turn on a switch that another page waits for, or erase the event.</source>
        <translation>自動実行が何度も繰り返され、プレイヤーは何もできません。別のページの条件になるスイッチをオンにするか、イベントを消去してください。</translation>
    </message>
    <message>
        <source>There is no map to be on: nothing can be seen.</source>
        <translation>表示できるマップがありません。</translation>
    </message>
    <message>
        <source>There is no troop %1; nobody fights.</source>
        <translation>敵グループ%1がありません。戦闘は行われません。</translation>
    </message>
    <message>
        <source>There is nothing to choose from.</source>
        <translation>選べるものがありません。</translation>
    </message>
    <message>
        <source>G</source>
        <comment>the currency</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>%1 commands were done without a wait: is this a loop without an end? It goes on, slowly.</source>
        <translation>ウェイトなしで%1個のコマンドが実行されました。終わらないループではありませんか。少しずつ続けます。</translation>
    </message>
    <message>
        <source>There is no command %1; it is passed by.</source>
        <translation>コマンド%1はありません。飛ばします。</translation>
    </message>
    <message>
        <source>The route has not got on for %1 seconds: something is in the way.</source>
        <translation>移動ルートが%1秒間進んでいません。何かがじゃまをしています。</translation>
    </message>
    <message>
        <source>This event is not on the map.</source>
        <translation>このイベントはマップにありません。</translation>
    </message>
    <message>
        <source>There is no event %1 on the map.</source>
        <translation>マップにイベント%1がありません。</translation>
    </message>
    <message>
        <source>A loop ends here that has not begun.</source>
        <translation>始まっていないループの終わりがあります。</translation>
    </message>
    <message>
        <source>There is no loop to be left here.</source>
        <translation>ここには中断するループがありません。</translation>
    </message>
    <message>
        <source>There is no label “%1” in this list.</source>
        <translation>このリストにラベル「%1」がありません。</translation>
    </message>
    <message>
        <source>%1 common events call one another: does one call itself? This call is passed by.</source>
        <translation>コモンイベントの呼び出しが%1回重なりました。自分自身を呼び出していませんか。この呼び出しは飛ばします。</translation>
    </message>
    <message>
        <source>There is no state %1.</source>
        <translation>ステート%1がありません。</translation>
    </message>
    <message>
        <source>%1 is now at level %2!</source>
        <translation>%1はレベル%2に上がりました！</translation>
    </message>
    <message>
        <source>There is no skill %1.</source>
        <translation>スキル%1がありません。</translation>
    </message>
    <message>
        <source>There is no weapon %1.</source>
        <translation>武器%1がありません。</translation>
    </message>
    <message>
        <source>There is no armor %1.</source>
        <translation>防具%1がありません。</translation>
    </message>
    <message>
        <source>The party has nothing of that kind to wear; nothing is changed.</source>
        <translation>その装備をパーティーが持っていません。何も変わりません。</translation>
    </message>
    <message>
        <source>A name cannot be put in during a battle.</source>
        <translation>戦闘中は名前を入力できません。</translation>
    </message>
    <message>
        <source>A battle cannot begin here.</source>
        <translation>ここでは戦闘を始められません。</translation>
    </message>
    <message>
        <source>There is no enemy outside of a battle.</source>
        <translation>戦闘中でないため、敵がいません。</translation>
    </message>
    <message>
        <source>There is no enemy %1 in this battle.</source>
        <translation>この戦闘に敵キャラ%1はいません。</translation>
    </message>
    <message>
        <source>Nobody there can do this now.</source>
        <translation>今その行動をとれる者がいません。</translation>
    </message>
    <message>
        <source>There is no actor %1.</source>
        <translation>アクター%1がありません。</translation>
    </message>
    <message>
        <source>There is no condition %1; it does not hold.</source>
        <translation>条件%1はありません。満たされないものとします。</translation>
    </message>
    <message>
        <source>There is no common event %1.</source>
        <translation>コモンイベント%1がありません。</translation>
    </message>
    <message>
        <source>Variable %1 is divided by 0; it stays what it is.</source>
        <translation>変数%1を0で割ろうとしました。値は変わりません。</translation>
    </message>
    <message>
        <source>Only an event on a map has self switches.</source>
        <translation>セルフスイッチはマップのイベントでだけ使えます。</translation>
    </message>
    <message>
        <source>There is no switch or variable %1; the numbers go from 1 to %2.</source>
        <translation>スイッチ・変数%1はありません。番号は1～%2です。</translation>
    </message>
    <message>
        <source>There is no item %1.</source>
        <translation>アイテム%1がありません。</translation>
    </message>
    <message>
        <source>There is no picture %1; the numbers go from 1 to %2.</source>
        <translation>ピクチャ%1はありません。番号は1～%2です。</translation>
    </message>
    <message>
        <source>Picture %1 is not shown.</source>
        <translation>ピクチャ%1は表示されていません。</translation>
    </message>
    <message>
        <source>This cannot be done during a battle.</source>
        <translation>戦闘中は実行できません。</translation>
    </message>
    <message>
        <source>There is no map %1.</source>
        <translation>マップ%1がありません。</translation>
    </message>
    <message>
        <source>Map %1 has no cell %2, %3.</source>
        <translation>マップ%1に、座標（%2, %3）のマスはありません。</translation>
    </message>
    <message>
        <source>A route that repeats has no end to wait for; the event goes on.</source>
        <translation>繰り返す移動ルートには終わりがないため、待たずに続けます。</translation>
    </message>
    <message>
        <source>There is no animation %1.</source>
        <translation>アニメーション%1がありません。</translation>
    </message>
    <message>
        <source>There is no balloon %1.</source>
        <translation>フキダシ%1がありません。</translation>
    </message>
    <message>
        <source>The shop offers something that is not in the database: number %1.</source>
        <translation>ショップの商品がデータベースにありません：番号%1</translation>
    </message>
    <message>
        <source>There is no movement %1; it is passed by.</source>
        <translation>移動コマンド%1はありません。飛ばします。</translation>
    </message>
    <message>
        <source>A wait of %1 frames is too long; it ends after %2.</source>
        <translation>待ち時間%1フレームは長すぎるので、%2フレームで終わります。</translation>
    </message>
    <message>
        <source>The face “%1” is one picture: its number %2 makes no difference.</source>
        <translation>顔画像「%1」は1枚だけなので、番号%2は何も変えません。</translation>
    </message>
    <message>
        <source>An action of the enemy “%1” uses skill %2, which is not there.</source>
        <translation>敵キャラ「%1」の行動が使うスキル%2がありません。</translation>
    </message>
    <message>
        <source>The trait “%2” makes no difference to the enemy “%1”: enemies use the skills of their actions, and win no EXP.</source>
        <translation>特徴「%2」は敵キャラ「%1」には意味がありません。敵キャラは行動パターンのスキルを使い、経験値を得ません。</translation>
    </message>
    <message>
        <source>A trait of “%1” names state %2, which is not there.</source>
        <translation>「%1」の特徴にあるステート%2がありません。</translation>
    </message>
    <message>
        <source>A trait of “%1” names skill %2, which is not there.</source>
        <translation>「%1」の特徴にあるスキル%2がありません。</translation>
    </message>
    <message>
        <source>“%1” has the trait “%2”, which there is not.</source>
        <translation>「%1」の特徴「%2」というものはありません。</translation>
    </message>
    <message>
        <source>“%1” has the effect “%2”, which there is not.</source>
        <translation>「%1」の効果「%2」というものはありません。</translation>
    </message>
    <message>
        <source>The skill “%1” has the target %2, which there is not: it concerns nobody.</source>
        <translation>スキル「%1」の対象%2というものはありません。だれにも効きません。</translation>
    </message>
    <message>
        <source>Actor %1 of the party for trial battles is not there.</source>
        <translation>戦闘テストのパーティーにいるアクター%1がありません。</translation>
    </message>
    <message>
        <source>The title screen has the command “%1”, which there is not.</source>
        <translation>タイトル画面のコマンド「%1」というものはありません。</translation>
    </message>
    <message>
        <source>The game&apos;s language is set to %1. Test play says its own words, such as those of menus, in the language of the editor.</source>
        <translation>ゲームの言語は%1に設定されています。テストプレイでは、メニューなどの言葉はエディターの言語で表示されます。</translation>
    </message>
    <message>
        <source>en_US</source>
        <comment>the locale that this translation is in</comment>
        <translation>ja_JP</translation>
    </message>
</context>
<context>
    <name>TitleScene</name>
    <message>
        <source>New game</source>
        <translation>ニューゲーム</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>コンティニュー</translation>
    </message>
    <message>
        <source>There is no saved game yet.</source>
        <translation>セーブデータがまだありません。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>There is nothing to set in test play.</source>
        <translation>テストプレイでは設定できるものがありません。</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>There are no credits in test play.</source>
        <translation>テストプレイにはクレジットがありません。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>UseOnParty</name>
    <message>
        <source>It cannot be used.</source>
        <translation>使えません。</translation>
    </message>
    <message>
        <source>It is of use in battle only.</source>
        <translation>戦闘中だけ使えます。</translation>
    </message>
    <message>
        <source>Use it on whom?</source>
        <translation>だれに使いますか？</translation>
    </message>
</context>
<context>
    <name>player::Artwork</name>
    <message>
        <source>There is no picture “%1”: a plain box is shown. Choose another picture in its place.</source>
        <extracomment>%1 is the name of a picture in the project.</extracomment>
        <translation>画像「%1」がないため、四角い枠を表示しています。別の画像を選んでください。</translation>
    </message>
</context>
<context>
    <name>player::GameView</name>
    <message>
        <source>The game</source>
        <extracomment>Read out to those who do not see it: the part of a window in which the game is played.</extracomment>
        <translation>ゲーム画面</translation>
    </message>
    <message>
        <source>The game waits. Click here to go on.</source>
        <extracomment>Over a game that stands still because another window has the keyboard.</extracomment>
        <translation>ゲームは一時停止中です。ここをクリックすると続きます。</translation>
    </message>
</context>
<context>
    <name>player::KeyLine</name>
    <message>
        <source>Walk, choose</source>
        <extracomment>Below a game, behind the arrow keys: what they do. There is room for some 20 letters.</extracomment>
        <translation>移動・選択</translation>
    </message>
    <message>
        <source>Talk, confirm</source>
        <extracomment>Below a game, behind the enter key: what it does. There is room for some 20 letters.</extracomment>
        <translation>話す・決定</translation>
    </message>
    <message>
        <source>Menu, cancel</source>
        <extracomment>Below a game, behind the X key: what it does. There is room for some 20 letters.</extracomment>
        <translation>メニュー・取り消し</translation>
    </message>
    <message>
        <source>Cancel, to the editor</source>
        <extracomment>Below a game, behind the escape key: what it does. There is room for some 30 letters.</extracomment>
        <translation>取り消し・エディターに戻る</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <extracomment>Below a game, behind the F5 key: what it does. There is room for some 20 letters.</extracomment>
        <translation>最初から</translation>
    </message>
</context>
<context>
    <name>player::LogPane</name>
    <message>
        <source>Troop %1</source>
        <translation>敵グループ%1</translation>
    </message>
    <message>
        <source>Common event %1</source>
        <translation>コモンイベント%1</translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation>イベント%1</translation>
    </message>
    <message>
        <source>Map %1</source>
        <translation>マップ%1</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>ページ%1</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1行目</translation>
    </message>
    <message>
        <source>Close the open windows of the editor first: they lie before that place.</source>
        <translation>先にエディターのウィンドウを閉じてください。開いたままでは、その場所を表示できません。</translation>
    </message>
    <message>
        <source>What the game cannot do. A double click, or Enter, leads to the place in the editor.</source>
        <translation>ゲームでできなかったことです。ダブルクリックするかEnterキーを押すと、エディターのその場所が開きます。</translation>
    </message>
</context>
<context>
    <name>player::PlayerWindow</name>
    <message>
        <source>%1 – Test play</source>
        <extracomment>Title of the window of a game that is tried out; %1 is the name of the game.</extracomment>
        <translation>%1 – テストプレイ</translation>
    </message>
</context>
</TS>
